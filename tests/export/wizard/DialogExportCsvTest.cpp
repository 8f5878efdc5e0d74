#include "export/wizard/DialogExportCsv.h"

#include "export/wizard/ExportNote.h"
#include "gui/look/QwtComboBox.h"
#include "tests/gui/TestProgram.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

class DialogExportCsvTest : public ::testing::Test
{
protected:
    QLineEdit& edit(const char* name) { return *wizard.findChild<QLineEdit*>(QLatin1String(name)); }
    void activate(const char* name, int index)
    {
        auto* box = wizard.findChild<QwtComboBox*>(QLatin1String(name));
        box->setCurrentIndex(index);
        emit box->activated(index); // as a click on the item does
    }
    void open()
    {
        wizard.loadOptions();
        wizard.show();
        edit("exportPath").setText(program.home.path());
    }
    QString subTitle() const { return wizard.currentPage()->subTitle(); }
    QString label(const char* name) const
    {
        return wizard.findChild<QLabel*>(QLatin1String(name))->text();
    }
    /// A record with a row per 100 ms of 2 minutes, or ten times as many; all of the selected
    /// parameters are without samples.
    static std::size_t rows(const CsvExportOptions& options)
    {
        return options.allParameters ? 120000U / static_cast<unsigned>(options.resolution) : 0U;
    }

    TestProgram program;
    DialogExportCsv wizard{program.settings, program.dialogs, rows};
};

const QString kPathPage = QStringLiteral("Select the output directory and file");
const QString kOptionsPage = QStringLiteral("Select CSV Option");

} // namespace

TEST_F(DialogExportCsvTest, SaysWhatIsWrongWithAPlaceAndStaysThere)
{
    wizard.loadOptions();
    EXPECT_EQ(edit("exportPath").text(), QStringLiteral("."));
    EXPECT_EQ(edit("exportFile").text(), QStringLiteral("ExportVelix.csv"));
    open();
    ASSERT_TRUE(writeFile(program.home.filePath(QStringLiteral("plain")), "x"));
    const QString home = program.home.path();
    const struct
    {
        QString path;
        QString file;
        QString sentence;
    } rows[] = {
        {home + QStringLiteral("/none"), QStringLiteral("a.csv"),
         QStringLiteral("The folder \"%1/none\" does not exist.").arg(home)},
        {{}, QStringLiteral("a.csv"), QStringLiteral("The folder \"\" does not exist.")},
        {home + QStringLiteral("/plain"), QStringLiteral("a.csv"),
         QStringLiteral("\"%1/plain\" is not a folder.").arg(home)},
        {home, {}, QStringLiteral("Enter a name for the file.")},
        {home, QStringLiteral("  "), QStringLiteral("Enter a name for the file.")},
        {home, QStringLiteral("a/b.csv"),
         QStringLiteral("The name of the file must not contain \"/\".")},
        {home, QStringLiteral("VELIX"),
         QStringLiteral("\"VELIX\" is a folder. Enter another name.")},
    };
    const auto* problem = wizard.findChild<ExportNote*>(QStringLiteral("exportProblem"));
    for (const auto& row : rows) {
        edit("exportPath").setText(row.path);
        edit("exportFile").setText(row.file);
        EXPECT_FALSE(problem->isVisible());
        wizard.next();
        EXPECT_EQ(subTitle(), kPathPage);
        EXPECT_TRUE(problem->isVisible());
        EXPECT_EQ(problem->note(), row.sentence);
    }
    edit("exportPath").setText(home);
    edit("exportFile").setText(QStringLiteral("a.csv"));
    wizard.next();
    EXPECT_EQ(subTitle(), kOptionsPage);
}

TEST_F(DialogExportCsvTest, AsksOnceBeforeItReplacesAFile)
{
    for (const char* name : {"ExportVelix.csv", "other.csv"}) {
        ASSERT_TRUE(writeFile(program.home.filePath(QLatin1String(name)), "x"));
    }
    open();
    const struct
    {
        const char* file;
        bool agrees;
        int asked;
    } rows[] = {{"ExportVelix.csv", false, 1},
                {"ExportVelix.csv", true, 1},
                {"ExportVelix.csv", false, 0}, // the answer is known
                {"other.csv", false, 1}};
    for (const auto& row : rows) {
        edit("exportFile").setText(QLatin1String(row.file));
        program.dialogs.agrees = row.agrees;
        wizard.next();
        EXPECT_EQ(program.dialogs.takeAsked().size(), row.asked);
        EXPECT_EQ(subTitle(), row.agrees || row.asked == 0 ? kOptionsPage : kPathPage);
        wizard.back();
    }
}

TEST_F(DialogExportCsvTest, BrowsesForTheFolder)
{
    open();
    for (const QString& chosen : {QString(), QStringLiteral("/tmp")}) {
        program.dialogs.file = chosen;
        wizard.currentPage()->findChild<QPushButton*>()->click();
        EXPECT_EQ(program.dialogs.lastStart, program.home.path());
        EXPECT_EQ(edit("exportPath").text(), chosen.isEmpty() ? program.home.path() : chosen);
    }
    EXPECT_EQ(wizard.options().directory, "/tmp");
}

TEST_F(DialogExportCsvTest, SumsUpWhatWillBeWritten)
{
    open();
    wizard.next();
    EXPECT_EQ(label("summary0"), QStringLiteral("1200"));
    EXPECT_EQ(label("summaryFile"), program.home.filePath(QStringLiteral("ExportVelix.csv")));
    activate("csvResolution", 1);
    EXPECT_EQ(label("summary0"), QStringLiteral("12000"));
    activate("csvParameter", 1);
    EXPECT_TRUE(label("summary0").startsWith(QStringLiteral("0 ")));
    EXPECT_TRUE(label("summary0").contains(QStringLiteral("no parameter is selected")));
}

TEST_F(DialogExportCsvTest, HandsOutTheAnswersAndKeepsThemUnlessItIsCancelled)
{
    for (const bool accepted : {false, true}) {
        CsvExportOptions options;
        QTimer::singleShot(0, &wizard, [this, accepted] {
            edit("exportPath").setText(program.home.path());
            edit("exportFile").setText(QStringLiteral("f\u00FCr.csv"));
            wizard.next();
            activate("csvLimiter", 2);
            activate("csvResolution", 1);
            activate("csvParameter", 1);
            wizard.findChild<QCheckBox*>(QStringLiteral("csvAligned"))->setChecked(true);
            static_cast<QDialog&>(wizard).done(accepted ? QDialog::Accepted : QDialog::Rejected);
        });
        EXPECT_EQ(wizard.getOptions(options), accepted);
        EXPECT_EQ(options.fileName, accepted ? "f\xC3\xBCr.csv" : "ExportVelix.csv");
        EXPECT_EQ(program.setting("CsvLimiter"), accepted ? QStringLiteral("9") : QString());
    }
    const std::pair<const char*, QString> stored[] = {{"CsvExportDir", program.home.path()},
                                                      {"CsvLimiter", QStringLiteral("9")},
                                                      {"CsvResolution", QStringLiteral("10")},
                                                      {"CsvAllParameter", QStringLiteral("false")},
                                                      {"CsvAligned", QStringLiteral("true")}};
    DialogExportCsv next(program.settings, program.dialogs, rows);
    next.loadOptions(); // another visit, in which nothing is changed
    next.storeOptions();
    for (const auto& [key, text] : stored) {
        EXPECT_EQ(program.storedSetting(key), text) << key;
    }
    EXPECT_EQ(next.options().fileName, "ExportVelix.csv") << "a name is for one export only";
}

TEST_F(DialogExportCsvTest, SettingsThatNoControlKnowsFallBackToTheFirstItem)
{
    program.settings.setInt("CsvLimiter", 70000);
    program.settings.setInt("CsvResolution", 0);
    open();
    wizard.next();
    EXPECT_EQ(wizard.options().delimiter, ';');
    EXPECT_EQ(wizard.options().resolution, 100);
}
