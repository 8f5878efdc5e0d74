#include "gui/profile/DialogProfile.h"

#include "gui/look/Palette.h"
#include "gui/look/WidgetHint.h"
#include "tests/gui/TestProgram.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

class DialogProfileTest : public ::testing::Test
{
protected:
    DialogProfileTest() : changes(&dialog, &DialogProfile::signalChanged)
    {
        EXPECT_TRUE(demoProfile().load(program.profile));
        dialog.updateList();
        dialog.show();
    }

    QTreeWidget& tree() { return *dialog.findChild<QTreeWidget*>(); }
    QTreeWidgetItem& item(int device, int parameter)
    {
        return *tree().topLevelItem(device)->child(parameter);
    }
    QPushButton& button(const char* name)
    {
        return *dialog.findChild<QPushButton*>(QLatin1String(name));
    }
    void search(const char* text) { dialog.findChild<QLineEdit*>()->setText(QLatin1String(text)); }
    bool isHighlighted()
    {
        return button("buttonConfirm").palette().color(QPalette::Button) ==
               Palette::current().accent;
    }
    /// Whether the button changes its look within the next ticks.
    bool blinks()
    {
        const bool before = isHighlighted();
        return QTest::qWaitFor([&] { return isHighlighted() != before; }, 600);
    }
    /// All lines as text: indented, ticks as "[x]", hidden ones left out.
    QString lines()
    {
        QStringList lines;
        const auto add = [&](const QTreeWidgetItem& line, const QString& indent) {
            const char* const mark[] = {"[ ] ", "[-] ", "[x] "};
            lines.append(indent + QLatin1String(mark[line.checkState(0)]) + line.text(0));
        };
        for (int i = 0; i < tree().topLevelItemCount(); ++i) {
            const QTreeWidgetItem* device = tree().topLevelItem(i);
            if (device->isHidden()) {
                continue;
            }
            add(*device, {});
            for (int j = 0; j < device->childCount(); ++j) {
                if (!device->child(j)->isHidden()) {
                    add(*device->child(j), QStringLiteral("  "));
                }
            }
        }
        return lines.join(QLatin1Char('\n'));
    }

    TestProgram program;
    DialogProfile dialog{program.profile};
    QSignalSpy changes;
};

} // namespace

TEST_F(DialogProfileTest, ListsDevicesWithTheUnitsOfTheUnitSystem)
{
    EXPECT_EQ(lines().toStdString(), "[ ] 1 Airframe\n  [ ] Ground Speed\n  [ ] Flaps\n"
                                     "[ ] 2 Lane A\n  [ ] Oil Temp [C]");
    program.profile.setCurrentUnit(eUnitImperial);
    dialog.updateUnits();
    EXPECT_EQ(item(1, 0).text(0), QStringLiteral("Oil Temp [F]"));
}

TEST_F(DialogProfileTest, ATickIsInTheProfileAtOnceAndBlinksUntilConfirmed)
{
    item(1, 0).setCheckState(0, Qt::Checked);
    EXPECT_EQ(program.selection(), QStringLiteral("Lane A/Oil Temp"));
    EXPECT_EQ(changes.count(), 0);
    EXPECT_TRUE(blinks());
    tree().topLevelItem(0)->setCheckState(0, Qt::Checked); // and with it its parameters
    EXPECT_EQ(program.selection(),
              QStringLiteral("Airframe/Ground Speed, Airframe/Flaps, Lane A/Oil Temp"));
    EXPECT_TRUE(blinks());

    button("buttonConfirm").click();
    EXPECT_EQ(changes.count(), 1);
    EXPECT_FALSE(isHighlighted());
    EXPECT_FALSE(blinks());
}

TEST_F(DialogProfileTest, ClearTakesAllTicksAndSignalsOnce)
{
    ProfileBuilder::selectAll(program.profile);
    dialog.updateProject();
    EXPECT_EQ(item(0, 1).checkState(0), Qt::Checked);
    EXPECT_FALSE(blinks()); // not the user's change

    button("buttonClear").click();
    EXPECT_EQ(program.selection(), QString());
    EXPECT_EQ(tree().topLevelItem(0)->checkState(0), Qt::Unchecked);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_FALSE(blinks());
}

TEST_F(DialogProfileTest, SearchFindsByNameAndByDeviceAndSelectsWhatItFinds)
{
    const auto& count = *dialog.findChild<QLabel*>(QStringLiteral("countParameters"));
    const struct
    {
        const char* text;
        const char* lines;
        int entry; ///< of the context menu: all or none shown
        const char* selection;
        const char* count;
        bool deviceCanBeTicked; ///< not with what the search hides
    } rows[] = {
        {"oil", "[ ] 2 Lane A\n  [ ] Oil Temp [C]", 0, "Lane A/Oil Temp", "1 of 3 selected", false},
        {"nothing", "", 0, "Lane A/Oil Temp", "1 of 3 selected", false},
        {"airframe", "[ ] 1 Airframe\n  [ ] Ground Speed\n  [ ] Flaps", 0,
         "Airframe/Ground Speed, Airframe/Flaps, Lane A/Oil Temp", "3 of 3 selected", true},
        {" FLAP ", "[x] 1 Airframe\n  [x] Flaps", 1, "Airframe/Ground Speed, Lane A/Oil Temp",
         "2 of 3 selected", false},
        {"", "[-] 1 Airframe\n  [x] Ground Speed\n  [ ] Flaps\n[x] 2 Lane A\n  [x] Oil Temp [C]", 1,
         "", "0 of 3 selected", true},
    };
    EXPECT_FALSE(blinks());
    for (const auto& row : rows) {
        search(row.text);
        EXPECT_EQ(lines().toStdString(), row.lines) << row.text;
        EXPECT_EQ(tree().topLevelItem(0)->flags().testFlag(Qt::ItemIsUserCheckable),
                  row.deviceCanBeTicked)
            << row.text;
        tree().actions().at(row.entry)->trigger();
        EXPECT_EQ(program.selection(), QLatin1String(row.selection)) << row.text;
        EXPECT_EQ(count.text(), QLatin1String(row.count)) << row.text;
    }
    EXPECT_TRUE(blinks());
    EXPECT_EQ(changes.count(), 0); // not confirmed yet
    tree().topLevelItem(0)->setCheckState(0, Qt::Checked);
    EXPECT_EQ(count.text(), QStringLiteral("2 of 3 selected"));
}

TEST_F(DialogProfileTest, FollowsAReloadAndKeepsClosedDevicesAndTheSearch)
{
    tree().topLevelItem(1)->setExpanded(false);
    search("l"); // "Flaps", "Lane A" with its oil
    program.profile.data().devices[0].parameters.at(301).selected = true;
    program.project.rememberSelection();
    ASSERT_TRUE(demoProfile().load(program.profile, QStringLiteral("Alpha")));
    program.project.restoreSelection();
    dialog.updateList();
    EXPECT_EQ(lines().toStdString(),
              "[-] 1 Airframe\n  [x] Flaps\n[ ] 2 Lane A\n  [ ] Oil Temp [C]");
    EXPECT_FALSE(tree().topLevelItem(1)->isExpanded());

    item(1, 0).setCheckState(0, Qt::Checked); // its item belongs to the new profile
    EXPECT_EQ(program.selection(), QStringLiteral("Airframe/Flaps, Lane A/Oil Temp"));
}

TEST_F(DialogProfileTest, OffersToInstallAProfileWhenThereIsNone)
{
    program.profile.clear();
    dialog.updateList();
    EXPECT_TRUE(dialog.findChild<WidgetHint*>()->isVisible());
    EXPECT_FALSE(tree().isVisible());
    QSignalSpy installs(&dialog, &DialogProfile::signalInstallProfile);
    emit dialog.findChild<WidgetHint*>()->signalLink();
    EXPECT_EQ(installs.count(), 1);
}
