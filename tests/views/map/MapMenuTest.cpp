#include "views/map/MapMenu.h"
#include "core/Property.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "views/map/MapSelection.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QSignalSpy>
#include <QTest>

namespace VELIX {
namespace {

using Test::ProfileBuilder;

constexpr int kParameters = 14; ///< more than the map has room for

struct MapMenuTest : ::testing::Test
{
    void SetUp() override
    {
        ProfileBuilder builder;
        builder.device("Lane A").parameter(500, QStringLiteral("Speed"), "FLOAT");
        builder.parameter(501, QStringLiteral("Text"), "ACHAR4");
        builder.device("Lane B").parameter(600, QStringLiteral("Speed"), "FLOAT");
        for (int id = 601; id < 598 + kParameters; ++id) {
            builder.parameter(id, QStringLiteral("P%1").arg(id), "FLOAT");
        }
        ASSERT_TRUE(builder.load(profile));
        for (ProfileDevice& device : profile.data().devices) {
            for (auto& [id, parameter] : device.parameters) {
                parameter.selected = true;
            }
        }
    }

    static QStringList texts(const QMenu& menu)
    {
        QStringList result;
        for (const QAction* action : menu.actions()) {
            if (!action->isSeparator()) {
                result.append(action->text());
            }
        }
        return result;
    }
    static int enabled(const QMenu& menu)
    {
        int count = 0;
        for (const QAction* action : menu.actions()) {
            count += action->isEnabled() ? 1 : 0;
        }
        return count;
    }

    Property settings;
    Profile profile;
    MapSelection selection{settings};
};

TEST_F(MapMenuTest, TicksManyValuesWithoutClosingAndNoMoreThanThereIsRoomFor)
{
    MapMenu menu(profile, selection, nullptr);
    auto& values = *menu.findChild<QMenu*>(QStringLiteral("mapValues"));
    EXPECT_EQ(texts(values).mid(0, 3),
              (QStringList{QStringLiteral("Lane A/Speed"), QStringLiteral("Text"),
                           QStringLiteral("Lane B/Speed")}))
        << "the device distinguishes parameters of one name";
    const QSignalSpy changed(&menu, &MapMenu::signalValuesChanged);
    values.popup({0, 0});
    for (QAction* action : values.actions()) {
        if (!action->isChecked()) {
            QTest::mouseClick(&values, Qt::LeftButton, {}, values.actionGeometry(action).center());
        }
    }
    EXPECT_TRUE(values.isVisible());
    EXPECT_EQ(changed.count(), 6) << "of the first six to twelve";
    EXPECT_EQ(selection.values(profile).size(), 12U);
    EXPECT_EQ(enabled(values), 12) << "of 14";
    values.actions().at(0)->trigger();
    EXPECT_EQ(enabled(values), kParameters);
    EXPECT_EQ(MapSelection(settings).values(profile).size(), 11U) << "kept in the settings";
}

TEST_F(MapMenuTest, ColoursByNumbersOnly)
{
    MapMenu menu(profile, selection, nullptr);
    const auto& colors = *menu.findChild<QMenu*>(QStringLiteral("mapColors"));
    EXPECT_EQ(texts(colors).mid(0, 3),
              (QStringList{QStringLiteral("Altitude"), QStringLiteral("Lane A/Speed"),
                           QStringLiteral("Lane B/Speed")}));
    const QSignalSpy changed(&menu, &MapMenu::signalColorChanged);
    colors.actions().at(3)->trigger();
    EXPECT_EQ(changed.count(), 1);
    ASSERT_NE(selection.color(profile), nullptr);
    EXPECT_EQ(selection.color(profile)->id, 600);
    colors.actions().at(0)->trigger();
    EXPECT_EQ(selection.color(profile), nullptr) << "the altitude";
}

} // namespace
} // namespace VELIX
