#include "export/wizard/DialogExportKml.h"

#include "export/wizard/ExportColorButton.h"
#include "export/wizard/ExportNote.h"
#include "tests/gui/TestProgram.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTimer>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

class DialogExportKmlTest : public ::testing::Test
{
protected:
    template <typename T>
    T& find(const char* name)
    {
        return *wizard.findChild<T*>(QLatin1String(name));
    }
    QCheckBox& box(const char* name) { return find<QCheckBox>(name); }
    QSpinBox& spin(const char* name) { return find<QSpinBox>(name); }
    QString label(const char* name) { return find<QLabel>(name).text(); }
    void open()
    {
        wizard.loadOptions(start);
        wizard.show();
        find<QLineEdit>("exportPath").setText(program.home.path());
    }
    /// A visit by another wizard, in which nothing is changed.
    void loadAndStore()
    {
        DialogExportKml next(program.settings, program.dialogs,
                             [](const KmlExportOptions&) { return KmlSummary(); });
        next.loadOptions(start);
        next.storeOptions();
    }
    void openLastPage()
    {
        open();
        wizard.next();
        wizard.next();
    }
    void chooseColor(const char* button, const QColor& color)
    {
        program.dialogs.chosenColor = color;
        find<ExportColorButton>(button).click();
    }
    /// Two hours of flight; marks and events as the options want them.
    KmlSummary summarize(const KmlExportOptions& options) const
    {
        KmlSummary summary;
        summary.hasPositions = hasPositions;
        summary.pathPoints = hasPositions ? 7200U / static_cast<unsigned>(options.timeStep) : 0U;
        if (options.placeMarkOn) {
            summary.parameterMarks =
                summary.pathPoints / static_cast<unsigned>(options.placeMarkInterval);
        }
        if (options.errorMarkOn) {
            summary.eventMarks = (options.showLimit ? 3U : 0U) + (options.showWarning ? 4U : 0U);
        }
        return summary;
    }

    TestProgram program;
    bool hasPositions = true;
    KmlExportOptions start;
    DialogExportKml wizard{program.settings, program.dialogs,
                           [this](const KmlExportOptions& o) { return summarize(o); }};
};

/// Every answer of the wizard, none of them the default.
const std::pair<const char*, const char*> kAnswers[] = {
    {"KmlTimeStamp", "7"},           {"KmlLineWidth", "4"},
    {"KmlLineColor", "00ff00"},      {"KmlLineAlpha", "128"},
    {"KmlPolygonOn", "false"},       {"KmlPolygonColor", "102030"},
    {"KmlPolygonAlpha", "0"},        {"KmlPlaceMarkOn", "false"},
    {"KmlPlaceMarkIntervall", "45"}, {"KmlPlaceMarkColor", "a0b0c0"},
    {"KmlErrorMarkOn", "false"},     {"KmlShowLimit", "false"},
    {"KmlShowWarning", "false"},     {"KmlErrorMarkColor", "123456"},
    {"KmlStandard", "true"}};

} // namespace

TEST_F(DialogExportKmlTest, HandsOutTheAnswersAndKeepsThemUnlessItIsCancelled)
{
    const ProfileParameter parameter;
    start.fileName = "CARD.kml";
    start.parameters = {&parameter};
    KmlExportOptions options = start;
    for (const bool accepted : {false, true}) {
        QTimer::singleShot(0, &wizard, [this, accepted] {
            find<QLineEdit>("exportPath").setText(program.home.path());
            wizard.next();
            spin("kmlTimestamp").setValue(7);
            spin("kmlLineWidth").setValue(4);
            chooseColor("kmlLineColor", QColor(0, 255, 0, 128));
            chooseColor("kmlPolygonColor", QColor(0x10, 0x20, 0x30, 0));
            box("kmlPolygon").setChecked(false);
            box("kmlStandard").setChecked(true);
            wizard.next();
            spin("kmlPlacemarkStep").setValue(45);
            chooseColor("kmlPlacemarkColor", QColor(0xA0, 0xB0, 0xC0));
            chooseColor("kmlErrorColor", QColor(0x12, 0x34, 0x56));
            for (const char* name : {"kmlLimit", "kmlWarning", "kmlPlacemark", "kmlError"}) {
                box(name).setChecked(false);
            }
            static_cast<QDialog&>(wizard).done(accepted ? QDialog::Accepted : QDialog::Rejected);
        });
        EXPECT_EQ(wizard.getOptions(options), accepted);
        EXPECT_EQ(options.timeStep, accepted ? 7 : 1);
        EXPECT_EQ(program.setting("KmlTimeStamp"), accepted ? QStringLiteral("7") : QString());
    }
    EXPECT_EQ(options.fileName, "CARD.kml");
    EXPECT_EQ(options.parameters, start.parameters);
    EXPECT_EQ(options.lineColor, "00ff00");
    EXPECT_EQ(options.lineAlpha, 128);
    loadAndStore();
    EXPECT_EQ(program.storedSetting("KmlExportDir"), program.home.path());
    for (const auto& [key, text] : kAnswers) {
        EXPECT_EQ(program.storedSetting(key), QLatin1String(text)) << key;
    }
}

TEST_F(DialogExportKmlTest, SettingsBeyondTheControlsAreCutOrPassedOver)
{
    const struct
    {
        const char* key;
        const char* text;
        const char* taken;
    } rows[] = {{"KmlTimeStamp", "0", "1"},
                {"KmlLineWidth", "99", "6"},
                {"KmlLineAlpha", "-5", "0"},
                {"KmlPolygonAlpha", "256", "255"},
                {"KmlPlaceMarkIntervall", "abc", "5"},
                {"KmlLineColor", "red", "ff0000"},
                {"KmlPolygonColor", "#00ff00", "0000ff"},
                {"KmlErrorMarkColor", "", "ff0000"}};
    for (const auto& row : rows) {
        program.settings.setString(row.key, row.text);
    }
    loadAndStore();
    for (const auto& row : rows) {
        EXPECT_EQ(program.storedSetting(row.key), QLatin1String(row.taken)) << row.key;
    }
}

TEST_F(DialogExportKmlTest, ColorChoosersStartWithTheColorAndCancelKeepsIt)
{
    program.settings.setString("KmlLineColor", "336699");
    program.settings.setInt("KmlLineAlpha", 128);
    openLastPage();
    const struct
    {
        const char* button;
        const char* title;
        QColor color;
        bool opacity;
    } rows[] = {
        {"kmlLineColor", "Select Line Color", QColor(0x33, 0x66, 0x99, 128), true},
        {"kmlPolygonColor", "Select Polygon Color", QColor(0, 0, 255, 100), true},
        {"kmlPlacemarkColor", "Select Placemark Color", QColor(0xFF, 0xCC, 0), false},
        {"kmlErrorColor", "Select Exceedance Placemark Color", QColor(255, 0, 0), false},
    };
    for (const auto& row : rows) {
        chooseColor(row.button, {});
        EXPECT_EQ(program.dialogs.takeAsked(), QStringList(QLatin1String(row.title)));
        EXPECT_EQ(program.dialogs.lastColor, row.color) << row.title;
        EXPECT_EQ(program.dialogs.lastOpacity, row.opacity) << row.title;
        EXPECT_EQ(find<ExportColorButton>(row.button).color(), row.color) << row.title;
    }
    EXPECT_EQ(wizard.options().lineColor, "336699");
    EXPECT_EQ(wizard.options().lineAlpha, 128);
}

TEST_F(DialogExportKmlTest, ControlsFollowTheSwitchThatTheyDependOn)
{
    program.settings.setSwitch("KmlErrorMarkOn", false);
    openLastPage();
    const struct
    {
        const char* master;
        std::vector<const char*> details;
    } rows[] = {{"kmlPolygon", {"kmlPolygonColor"}},
                {"kmlPlacemark", {"kmlPlacemarkStep", "kmlPlacemarkColor"}},
                {"kmlError", {"kmlLimit", "kmlWarning", "kmlErrorColor"}}};
    for (const auto& row : rows) {
        QCheckBox& master = box(row.master);
        for (int i = 0; i < 3; ++i, master.toggle()) {
            for (const char* name : row.details) {
                EXPECT_EQ(find<QWidget>(name).isEnabled(), master.isChecked()) << name;
            }
        }
    }
}

TEST_F(DialogExportKmlTest, SumsUpWhatWillBeWritten)
{
    openLastPage();
    EXPECT_EQ(label("summaryFile"), program.home.filePath(QStringLiteral("ExportVelix.kml")));
    EXPECT_EQ(label("summary0"), QStringLiteral("7200"));
    EXPECT_TRUE(label("summary1").startsWith(QStringLiteral("720 ")));
    EXPECT_TRUE(label("summary1").contains(QStringLiteral("no parameter is selected")));
    EXPECT_EQ(label("summary2"), QStringLiteral("7"));
    spin("kmlPlacemarkStep").setValue(100);
    EXPECT_TRUE(label("summary1").startsWith(QStringLiteral("72 ")));
    box("kmlLimit").setChecked(false);
    EXPECT_EQ(label("summary2"), QStringLiteral("4"));
    box("kmlError").setChecked(false);
    box("kmlPlacemark").setChecked(false);
    EXPECT_EQ(label("summary1"), QStringLiteral("0"));
    EXPECT_EQ(label("summary2"), QStringLiteral("0"));

    wizard.back();
    spin("kmlTimestamp").setValue(60);
    wizard.next();
    EXPECT_EQ(label("summary0"), QStringLiteral("120"));
}

TEST_F(DialogExportKmlTest, ReportsARecordWithoutPositionsBeforeAnythingIsWritten)
{
    open();
    const auto& remark = find<ExportNote>("exportRemark");
    EXPECT_FALSE(remark.isVisible());
    hasPositions = false;
    open();
    EXPECT_TRUE(remark.isVisible());
    EXPECT_EQ(remark.note(),
              QStringLiteral("This record has no positions. The file will have no flight path."));
    wizard.next();
    wizard.next();
    EXPECT_EQ(label("summary0"), QStringLiteral("0 \u2013 the record has no positions"));
}
