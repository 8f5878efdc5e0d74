#include "views/graph/DialogGraphSetup.h"

#include "core/Property.h"
#include "views/graph/GraphSettings.h"
#include "views/graph/model/GraphData.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

namespace VELIX {
namespace {

struct DialogGraphSetupTest : ::testing::Test
{
    template <class T>
    T* control(const char* name)
    {
        return dialog.findChild<T*>(QLatin1String(name));
    }
    QString text(const char* edit) { return control<QLineEdit>(edit)->text(); }
    /// Presses a colour button and answers the colour dialog; an invalid colour cancels it.
    QColor pickColor(const char* button, const QColor& color)
    {
        QColor proposed;
        QTimer::singleShot(0, [&] {
            auto* chooser = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(chooser, nullptr);
            proposed = chooser->currentColor();
            if (color.isValid()) {
                chooser->setCurrentColor(color);
                chooser->accept();
            } else {
                chooser->reject();
            }
        });
        control<QPushButton>(button)->click();
        return proposed;
    }

    GraphData data;
    DialogGraphSetup dialog{nullptr, data};
    QSignalSpy changed{&dialog, &DialogGraphSetup::signalChanged};
};

TEST_F(DialogGraphSetupTest, ShowsTheSettingsWithoutReportingAChange)
{
    data.yMin = 1234567.0;
    data.yMax = 0.00001;
    data.cursorMode = 2;
    data.gridOn = false;
    const GraphData before = data;
    dialog.updateDialog();
    EXPECT_EQ(text("editYmin"), QStringLiteral("1.23457e+06"));
    EXPECT_EQ(text("editYmax"), QStringLiteral("1e-05"));
    EXPECT_EQ(control<QComboBox>("comboCursorMode")->currentText(), QStringLiteral("End"));
    EXPECT_EQ(control<QCheckBox>("boxGridOn")->checkState(), Qt::Unchecked);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(data, before) << "six digits in an editor must not replace the value";
}

TEST_F(DialogGraphSetupTest, EveryControlEditsItsSettingAtOnce)
{
    GraphData expected = data;
    const std::pair<const char*, bool GraphData::*> boxes[] = {
        {"boxGridOn", &GraphData::gridOn},
        {"boxCursorOn", &GraphData::cursorOn},
        {"boxLegendOn", &GraphData::legendOn},
        {"boxAutoscaleOn", &GraphData::autoScaleOn}};
    EXPECT_FALSE(control<QLineEdit>("editYmin")->isEnabled()) << "while the scale is automatic";
    for (const auto& [box, value] : boxes) {
        expected.*value = false;
        control<QCheckBox>(box)->click();
        EXPECT_EQ(data, expected) << box;
    }
    EXPECT_TRUE(control<QLineEdit>("editYmin")->isEnabled());

    const std::pair<const char*, std::string GraphData::*> buttons[] = {
        {"buttonBackColor", &GraphData::backColor},
        {"buttonGridColor", &GraphData::gridColor},
        {"buttonLabelColor", &GraphData::labelColor},
        {"buttonLabelBackColor", &GraphData::labelBackColor}};
    for (const auto& [button, value] : buttons) {
        const QColor proposed = pickColor(button, QColor(0, 128, 255));
        EXPECT_EQ(proposed, QColor(QString::fromStdString(expected.*value))) << button;
        expected.*value = "#0080ff";
        EXPECT_EQ(data, expected) << button;
    }
    control<QComboBox>("comboCursorMode")->setCurrentIndex(expected.cursorMode = 0);
    control<QLineEdit>("editYmin")->setText(QStringLiteral("-12.5"));
    control<QLineEdit>("editYmax")->setText(QStringLiteral("1e3"));
    EXPECT_EQ(changed.count(), 11);
    control<QLineEdit>("editYmax")->setText(QStringLiteral("inf"));
    pickColor("buttonBackColor", QColor());
    expected.yMin = -12.5;
    expected.yMax = 1000.0;
    EXPECT_EQ(data, expected);
    EXPECT_EQ(changed.count(), 11);
}

struct GraphSettingsTest : ::testing::Test
{
    GraphSettingsTest() { settings.setConfigFile(path()); }
    std::string path() const { return folder.filePath(QStringLiteral("c.xml")).toStdString(); }

    QTemporaryDir folder;
    Property settings;
};

TEST_F(GraphSettingsTest, AllSettingsSurviveARun)
{
    GraphSettings(settings).storeStatisticOn(true);
    EXPECT_FALSE(GraphSettings(settings).load().has_value()) << "nothing is not the defaults";
    const GraphData data{12.5,      0,         0,     2,     "#111111", false, "#222222",
                         "#333333", "#444444", false, false, false,     -1.5,  2.5};
    GraphSettings(settings).store(data);
    Property later;
    later.setConfigFile(path());
    later.readXmlFile();
    ASSERT_TRUE(GraphSettings(later).load().has_value());
    EXPECT_EQ(*GraphSettings(later).load(), data);
    EXPECT_TRUE(GraphSettings(later).statisticOn());
}

TEST_F(GraphSettingsTest, ValuesThatMakeNoSenseAreReplaced)
{
    settings.setString("GraphXRange", "-3");
    settings.setString("GraphCursorMode", "9");
    settings.setString("GraphGraphMode", "-1");
    settings.setString("GraphBackColor", "no such colour");
    settings.setString("GraphYMax", "inf");
    settings.setString("GraphLegendOn", "false");
    GraphData expected;
    expected.legendOn = false;
    const auto data = GraphSettings(settings).load();
    ASSERT_TRUE(data.has_value());
    EXPECT_EQ(*data, expected);
}

} // namespace
} // namespace VELIX
