#include "gui/ExportController.h"

#include "export/wizard/DialogExportCsv.h"
#include "export/wizard/DialogExportKml.h"
#include "tests/gui/TestProgram.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

#include <functional>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

class ExportControllerTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(flightProfile().load(program.profile));
        ProfileBuilder::selectAll(program.profile);
        const QString card = program.home.filePath(QStringLiteral("CARD.7"));
        ASSERT_TRUE(writeFlights(card));
        ASSERT_TRUE(program.card.readContainer(card));
        ASSERT_EQ(program.card.loadFiles({QStringLiteral("0001.CAN")}), 1);
        program.settings.setString("LastPath", card.toStdString());
        ASSERT_TRUE(QDir().mkpath(folder));
        QObject::connect(&exports, &ExportController::signalNotice,
                         [this](const QString& sentence) { notice = sentence; });
        window.show();
    }
    /// Answers the wizard that comes up next with the folder, and goes to its end.
    template <typename Wizard>
    void answer()
    {
        auto* wizard = window.findChild<Wizard*>();
        QTimer::singleShot(0, wizard, [this, wizard] {
            wizard->template findChild<QLineEdit*>(QStringLiteral("exportPath"))->setText(folder);
            while (wizard->nextId() >= 0) {
                wizard->next();
            }
            wizard->accept();
        });
    }
    void exportKml()
    {
        answer<DialogExportKml>();
        exports.exportKml();
    }
    void exportCsv()
    {
        answer<DialogExportCsv>();
        exports.exportCsv();
    }
    QString file(const char* name) const { return folder + QLatin1Char('/') + QLatin1String(name); }

    static constexpr int kSeconds = 180; ///< of the flights
    TestProgram program;
    QString folder = program.home.filePath(QStringLiteral("out"));
    QString notice;
    QWidget window;
    ExportController exports{program.context, program.dialogs, &window};
};

} // namespace

TEST(ExportController, NamesTheKmlFileAfterTheCard)
{
    const struct
    {
        const char* card;
        const char* file;
    } rows[] = {{"/media/CARD", "CARD.kml"},
                {"/media/CARD/", "CARD.kml"},
                {"/a.b/My card", "My card.kml"},
                {"/media/2024.03.12", "2024.kml"},
                {"", "ExportVelix.kml"},
                {"/", "ExportVelix.kml"},
                {"/home/x/.cards", "ExportVelix.kml"}};
    for (const auto& row : rows) {
        EXPECT_EQ(ExportController::kmlFileName(QLatin1String(row.card)), QLatin1String(row.file))
            << row.card;
    }
}

TEST_F(ExportControllerTest, WritesWhatTheWizardsSumUp)
{
    exportKml();
    const QByteArray kml = readFile(file("CARD.kml"));
    const auto* kmlWizard = window.findChild<DialogExportKml*>();
    const auto summary = [](const QWizard* wizard, const char* line) {
        const auto* label = wizard->findChild<QLabel*>(QLatin1String(line));
        return label == nullptr ? -1 : QLocale().toInt(label->text());
    };
    const QByteArray path = kml.mid(kml.indexOf("<LineString>"));
    EXPECT_EQ(path.count(',') / 2, summary(kmlWizard, "summary0")); // two commas a point
    EXPECT_EQ(kml.count("<Point>"), summary(kmlWizard, "summary1"));
    EXPECT_EQ(kml.count("<Point>"), kSeconds / 10);
    EXPECT_TRUE(notice.contains(file("CARD.kml")));

    exportCsv();
    const QByteArray csv = readFile(file("ExportVelix.csv"));
    EXPECT_EQ(csv.count('\n') - 1, summary(window.findChild<DialogExportCsv*>(), "summary0"));
    EXPECT_EQ(csv.count('\n') - 1, kSeconds);
    EXPECT_TRUE(program.dialogs.takeAsked().isEmpty());
}

TEST_F(ExportControllerTest, ReportsAFileThatCannotBeWritten)
{
    // The folder goes away between the wizard's check and the writing.
    for (QWizard* wizard : window.findChildren<QWizard*>()) {
        QObject::connect(wizard, &QDialog::accepted, [this] { QDir(folder).removeRecursively(); });
    }
    exportKml();
    EXPECT_EQ(program.dialogs.takeAsked(),
              QStringList(QStringLiteral("VELIX Warning: Exporting KML file failed !")));
    EXPECT_TRUE(notice.startsWith(QStringLiteral("The file /")));
    ASSERT_TRUE(QDir().mkpath(folder));
    exportCsv();
    EXPECT_EQ(program.dialogs.takeAsked(),
              QStringList(QStringLiteral("VELIX Viewer Warning: Exporting CSV file failed !")));
}

TEST_F(ExportControllerTest, ACancelledExportLeavesTheOldFile)
{
    program.dialogs.agrees = true;
    exports.setPatience(0);
    const struct
    {
        const char* name;
        std::function<void()> run;
    } rows[] = {{"CARD.kml", [this] { exportKml(); }},
                {"ExportVelix.csv", [this] { exportCsv(); }}};
    for (const auto& row : rows) {
        ASSERT_TRUE(writeFile(file(row.name), "old"));
        bool shown = false;
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, [&] {
            if (auto* box = window.findChild<QProgressDialog*>()) {
                shown = box->isVisible() && box->isModal() && exports.isWriting();
                box->findChild<QPushButton*>()->click();
            }
        });
        user.start(0);
        row.run();
        EXPECT_TRUE(shown) << row.name;
        EXPECT_EQ(readFile(file(row.name)), "old");
        EXPECT_EQ(notice, QStringLiteral("The export was cancelled. Nothing was written."));
        EXPECT_EQ(program.dialogs.takeAsked().size(), 1); // about the old file, no failure
        EXPECT_FALSE(exports.isWriting());
    }
    EXPECT_EQ(QDir(folder).entryList(QDir::Files).size(), 2);
}
