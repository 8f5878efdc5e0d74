// One visit to the program as a user makes it, through its own dialogs: from a home with nothing
// but a profile to exported files and a project that is found again.

#include "export/DialogExportCsv.h"
#include "export/DialogExportKml.h"
#include "gui/DialogMain.h"
#include "gui/DialogStatusBar.h"
#include "gui/MainActions.h"
#include "gui/QwtComboBox.h"
#include "gui/StandardDialogs.h"
#include "tests/gui/ModalAnswer.h"
#include "tests/gui/TestProgram.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>
#include <QXmlStreamReader>

#include <memory>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

constexpr int kLoadMs = 5000;
constexpr int kLatitudeId = 1036;
constexpr int kLongitudeId = 1037;
constexpr int kAltitudeId = 1038;

ProfileBuilder profileWithPositions()
{
    ProfileBuilder builder = demoProfile();
    builder.device("Position")
        .parameter(kLatitudeId, QStringLiteral("Latitude"), "FLOAT")
        .set("velixDataType", "Latitude");
    builder.parameter(kLongitudeId, QStringLiteral("Longitude"), "FLOAT")
        .set("velixDataType", "Longitude");
    builder.parameter(kAltitudeId, QStringLiteral("Altitude"), "FLOAT")
        .set("velixDataType", "Altitude");
    return builder;
}

/// Two flights of 30 s in 180 s, with positions once a second.
RecordBuilder runWithPositions()
{
    RecordBuilder record = engineRun(10, 2);
    for (int i = 0; i < 180; ++i) {
        record.at(10 + i).id(kLatitudeId).floatValue(4800.0F + 0.01F * static_cast<float>(i));
        record.id(kLongitudeId).floatValue(1100.0F + 0.01F * static_cast<float>(i));
        record.id(kAltitudeId).floatValue(500.0F);
    }
    return record;
}

class ProgramTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        program = std::make_unique<TestProgram>();
        ASSERT_TRUE(profileWithPositions().write(program->data("Profile.xml")));
        ASSERT_TRUE(QDir().mkpath(card()));
        ASSERT_TRUE(runWithPositions().write(card() + QStringLiteral("/0001.CAN")));
        ASSERT_TRUE(QDir().mkpath(exports()));
        start();
    }

    void start()
    {
        window = std::make_unique<DialogMain>(program->context, StandardDialogs::instance());
        QApplication::setActiveWindow(window.get());
        QTest::qWait(100);
    }
    /// A later run of the program with the same home.
    void restart()
    {
        window.reset();
        program->profile.clear();
        program->project.clear();
        program->settings = Property();
        program->settings.setConfigFile(program->data("VELIX.ini").toStdString());
        program->settings.readXmlFile();
        start();
    }

    QString card() const { return program->cardFolder(); }
    QString exports() const { return program->home.filePath(QStringLiteral("exports")); }
    QString projectFile() const { return program->home.filePath(QStringLiteral("mine.xml")); }

    template <typename T>
    T& find(const char* name = "")
    {
        return *window->findChild<T*>(QLatin1String(name));
    }
    QTreeWidget& cycles() { return find<QTreeWidget>("treeCycles"); }
    QTableWidget& table() { return *find<QWidget>("viewTable").findChild<QTableWidget*>(); }
    void trigger(int action) { find<MainActions>().action(action)->trigger(); }

    /// An action that asks for a file or folder, whose path is typed into the dialog.
    void triggerWithPath(int action, const QString& path)
    {
        ModalAnswer<QFileDialog> typed([&](QFileDialog& dialog) {
            auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            edit->setText(path);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        trigger(action);
        EXPECT_TRUE(typed.isGiven()) << action;
    }
    /// An export through its wizard. overwrite: the file is there and may be replaced.
    template <typename Wizard>
    void exportFile(int action, bool overwrite)
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
        trigger(action);
        EXPECT_TRUE(wizard.isGiven());
    }

    void choose(QTreeWidgetItem* item, const QString& name)
    {
        cycles().setCurrentItem(item);
        const auto& status = find<DialogStatusBar>();
        ASSERT_TRUE(QTest::qWaitFor([&] { return status.loaded().startsWith(name); }, kLoadMs))
            << qPrintable(status.loaded());
    }
    void select(const char* parameter)
    {
        auto& tree = find<QTreeWidget>("treeParameters");
        const auto items =
            tree.findItems(QLatin1String(parameter), Qt::MatchStartsWith | Qt::MatchRecursive);
        ASSERT_EQ(items.size(), 1) << parameter;
        items.first()->setCheckState(0, Qt::Checked);
        find<QPushButton>("buttonConfirm").click();
    }
    void chooseIn(const char* selector, const char* text)
    {
        auto& box = find<QwtComboBox>(selector);
        box.setFocus();
        QTest::keyClicks(&box, QLatin1String(text));
        QTest::keyClick(&box, Qt::Key_Return);
        EXPECT_EQ(box.currentText(), QLatin1String(text));
    }
    QString headings()
    {
        QStringList texts;
        for (int i = 0; i < table().columnCount(); ++i) {
            texts.append(table().horizontalHeaderItem(i)->text());
        }
        return texts.join(QLatin1Char('|'));
    }
    QStringList csvLines() const
    {
        const QString file = exports() + QStringLiteral("/ExportVelix.csv");
        return QString::fromUtf8(TestProgram::read(file))
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    std::unique_ptr<TestProgram> program;
    std::unique_ptr<DialogMain> window;
};

/// The texts of all elements of a name; empty if the file is not well-formed.
QStringList texts(const QString& file, const char* element)
{
    QStringList found;
    QXmlStreamReader xml(TestProgram::read(file));
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement &&
            xml.name() == QLatin1String(element)) {
            found.append(xml.readElementText(QXmlStreamReader::IncludeChildElements));
        }
    }
    return xml.hasError() ? QStringList() : found;
}

} // namespace

TEST_F(ProgramTest, OpensACardAndShowsAFlightInTheChosenVariantAndUnits)
{
    triggerWithPath(eActionOpenCard, card());
    ASSERT_EQ(cycles().topLevelItemCount(), 1);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("VELIX ") + card());

    choose(cycles().topLevelItem(0), QStringLiteral("Cycle 1:"));
    ASSERT_EQ(cycles().topLevelItem(0)->childCount(), 2);
    choose(cycles().topLevelItem(0)->child(1), QStringLiteral("Cycle 1, flight 2"));
    select("Ground Speed");
    select("Oil Temp");
    EXPECT_EQ(headings(), QStringLiteral("Time|Ground Speed|Oil Temp [C]"));
    EXPECT_GT(table().rowCount(), 30);
    EXPECT_LT(table().rowCount(), 90);

    chooseIn("selectorVariant", "Beta");
    chooseIn("selectorUnit", "Imperial");
    EXPECT_EQ(headings(), QStringLiteral("Time|Ground Speed|Oil Temp [F]"));
    EXPECT_TRUE(table().item(0, 2)->text().startsWith(QStringLiteral("194."))); // 90 C
}

TEST_F(ProgramTest, ExportsTheFlightAsTableAndAsPath)
{
    triggerWithPath(eActionOpenCard, card());
    choose(cycles().topLevelItem(0), QStringLiteral("Cycle 1:"));
    select("Oil Temp");
    exportFile<DialogExportCsv>(eActionExportCsv, false);
    EXPECT_TRUE(csvLines().value(0).startsWith(QStringLiteral("Time;Ground Speed;")));
    const int whole = csvLines().size();
    EXPECT_EQ(whole, 1 + 180);

    choose(cycles().topLevelItem(0)->child(0), QStringLiteral("Cycle 1, flight 1"));
    exportFile<DialogExportCsv>(eActionExportCsv, true);
    EXPECT_GT(csvLines().size(), 1);
    EXPECT_LT(csvLines().size(), whole);

    exportFile<DialogExportKml>(eActionExportKml, false);
    const QStringList kml = QDir(exports()).entryList({QStringLiteral("*.kml")});
    ASSERT_EQ(kml.size(), 1);
    const QString file = exports() + QLatin1Char('/') + kml.first();
    EXPECT_TRUE(texts(file, "name").contains(QStringLiteral("Flight path")));
    const QStringList path =
        texts(file, "LineString").value(0).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    EXPECT_EQ(path.filter(QStringLiteral(",500.0")).size(), csvLines().size() - 1);
}

TEST_F(ProgramTest, FindsProjectCardAndChoicesAgain)
{
    triggerWithPath(eActionOpenCard, card());
    select("Oil Temp");
    triggerWithPath(eActionSaveProjectAs, projectFile());
    EXPECT_TRUE(TestProgram::read(projectFile()).contains("Lane A/Oil Temp"));

    select("Ground Speed"); // to be lost on purpose
    ModalAnswer<QMessageBox> lose([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
    trigger(eActionNewProject);
    EXPECT_TRUE(lose.isGiven());
    EXPECT_EQ(program->selection(), QString());
    triggerWithPath(eActionOpenProject, projectFile());
    EXPECT_EQ(program->selection(), QStringLiteral("Lane A/Oil Temp"));

    chooseIn("selectorVariant", "Beta");
    chooseIn("selectorUnit", "Imperial");
    select("Ground Speed");
    trigger(eActionQuit);
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(TestProgram::read(projectFile()).contains("Ground Speed"));

    restart();
    EXPECT_EQ(cycles().topLevelItemCount(), 1);
    EXPECT_EQ(find<QwtComboBox>("selectorVariant").currentText(), QStringLiteral("Beta"));
    EXPECT_EQ(find<QwtComboBox>("selectorUnit").currentText(), QStringLiteral("Imperial"));
    EXPECT_EQ(program->selection(), QStringLiteral("Airframe/Ground Speed, Lane A/Oil Temp"));
}
