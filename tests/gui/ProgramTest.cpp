// Visits to the program as a user makes them, through its own dialogs: from a home with nothing but
// a profile to exported files, and to a project that is found again.

#include "export/wizard/DialogExportCsv.h"
#include "export/wizard/DialogExportKml.h"
#include "gui/dialogs/StandardDialogs.h"
#include "tests/gui/MainWindowFixture.h"
#include "tests/gui/ModalAnswer.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QXmlStreamReader>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

class ProgramTest : public DialogMainTest
{
protected:
    void SetUp() override
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        ASSERT_TRUE(flightProfile().write(program.data("Profile.xml")));
        ASSERT_TRUE(writeFlights(program.cardFolder()));
        ASSERT_TRUE(QDir().mkpath(exports()));
        start(StandardDialogs::instance());
    }
    /// A later run of the program with the same home.
    void restart()
    {
        window.reset();
        program.profile.clear();
        program.project.clear();
        program.settings = Property();
        program.settings.setConfigFile(program.data("VELIX.ini").toStdString());
        program.settings.readXmlFile();
        start(StandardDialogs::instance());
    }

    QString exports() const { return program.home.filePath(QStringLiteral("exports")); }

    /// An action that asks for a file or folder, whose path is typed into the dialog.
    void triggerWithPath(int id, const QString& path)
    {
        ModalAnswer<QFileDialog> typed([&](QFileDialog& dialog) {
            auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            edit->setText(path);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        action(id).trigger();
        EXPECT_TRUE(typed.isGiven()) << id;
    }
    /// An export through its wizard. overwrite: the file is there and may be replaced.
    template <typename Wizard>
    void exportFile(int id, bool overwrite)
    {
        ModalAnswer<Wizard> wizard([&](Wizard& pages) {
            pages.template findChild<QLineEdit*>(QStringLiteral("exportPath"))->setText(exports());
            ModalAnswer<QMessageBox> yes(
                [](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
            while (pages.nextId() != -1) {
                const int page = pages.currentId();
                pages.next();
                ASSERT_NE(pages.currentId(), page);
            }
            EXPECT_EQ(yes.isGiven(), overwrite);
            pages.button(QWizard::FinishButton)->click();
        });
        action(id).trigger();
        EXPECT_TRUE(wizard.isGiven());
        EXPECT_TRUE(notice().startsWith(QStringLiteral("Written to ") + exports()));
    }
    QStringList csvLines() const
    {
        return QString::fromUtf8(readFile(exports() + QStringLiteral("/ExportVelix.csv")))
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
};

/// The texts of all elements of a name; empty if the file is not well-formed.
QStringList texts(const QString& file, const char* element)
{
    QStringList found;
    QXmlStreamReader xml(readFile(file));
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement &&
            xml.name() == QLatin1String(element)) {
            found.append(xml.readElementText(QXmlStreamReader::IncludeChildElements));
        }
    }
    return xml.hasError() ? QStringList() : found;
}

} // namespace

TEST_F(ProgramTest, ExportsTheFlightAsTableAndAsPath)
{
    triggerWithPath(eActionOpenCard, program.cardFolder());
    ASSERT_TRUE(load(cycles().topLevelItem(0), "Cycle 1:"));
    select(1, 0);
    exportFile<DialogExportCsv>(eActionExportCsv, false);
    EXPECT_TRUE(csvLines().value(0).startsWith(QStringLiteral("Time;Ground Speed;")));
    EXPECT_EQ(csvLines().size(), 1 + 180);

    ASSERT_TRUE(load(cycles().topLevelItem(0)->child(0), "Cycle 1, flight 1"));
    exportFile<DialogExportCsv>(eActionExportCsv, true);
    EXPECT_GT(csvLines().size(), 1);
    EXPECT_LT(csvLines().size(), 180);

    exportFile<DialogExportKml>(eActionExportKml, false);
    const QString file = exports() + QStringLiteral("/card.kml");
    EXPECT_TRUE(texts(file, "name").contains(QStringLiteral("Flight path")));
    const QStringList path =
        texts(file, "LineString").value(0).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    EXPECT_EQ(path.filter(QStringLiteral(",500.0")).size(), csvLines().size() - 1);
}

TEST_F(ProgramTest, FindsProjectCardAndChoicesAgain)
{
    triggerWithPath(eActionOpenCard, program.cardFolder());
    ASSERT_TRUE(load(cycles().topLevelItem(0), "Cycle 1:"));
    select(1, 0);
    const QString file = program.home.filePath(QStringLiteral("mine.xml"));
    triggerWithPath(eActionSaveProjectAs, file);
    EXPECT_TRUE(readFile(file).contains("Lane A/Oil Temp"));

    select(0, 0); // to be lost on purpose
    ModalAnswer<QMessageBox> lose([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
    action(eActionNewProject).trigger();
    EXPECT_TRUE(lose.isGiven());
    EXPECT_EQ(program.selection(), QString());
    EXPECT_EQ(headings(), "Time");
    EXPECT_EQ(find<QTreeWidget>("treeParameters").topLevelItem(1)->checkState(0), Qt::Unchecked);
    triggerWithPath(eActionOpenProject, file);
    EXPECT_EQ(headings(), "Time | Oil Temp [C]");

    chooseIn("selectorVariant", "Beta");
    chooseIn("selectorUnit", "Imperial");
    select(0, 0);
    EXPECT_EQ(headings(), "Time | Ground Speed | Oil Temp [F]");
    EXPECT_TRUE(table().item(0, 2)->text().startsWith(QStringLiteral("194."))); // 90 C
    EXPECT_EQ(find<QTreeWidget>("treeParameters").topLevelItem(1)->child(0)->text(0),
              QStringLiteral("Oil Temp [F]"));
    action(eActionQuit).trigger();
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(readFile(file).contains("Ground Speed"));

    restart();
    EXPECT_EQ(cycles().topLevelItemCount(), 1);
    EXPECT_EQ(find<QwtComboBox>("selectorVariant").currentText(), QStringLiteral("Beta"));
    EXPECT_EQ(find<QwtComboBox>("selectorUnit").currentText(), QStringLiteral("Imperial"));
    EXPECT_EQ(program.selection(), QStringLiteral("Airframe/Ground Speed, Lane A/Oil Temp"));
}
