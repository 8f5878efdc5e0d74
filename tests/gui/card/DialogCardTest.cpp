#include "gui/card/DialogCard.h"

#include "gui/look/WidgetHint.h"
#include "tests/gui/TestProgram.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

#include <list>

using namespace VELIX;
using namespace VELIX::Test;

Q_DECLARE_METATYPE(std::list<QString>)

namespace {

constexpr int kRestMs = 500;
constexpr int kMarginMs = 250;

class DialogCardTest : public ::testing::Test
{
protected:
    DialogCardTest() : loadsCycle(&dialog, &DialogCard::signalLoadCycle)
    {
        qRegisterMetaType<std::list<QString>>("std::list<QString>");
        loadsFiles.emplace(&dialog, &DialogCard::signalLoadRecord);
        EXPECT_TRUE(demoProfile().load(program.profile));
        EXPECT_TRUE(writeCard(program.cardFolder()));
        // As the main window does.
        QObject::connect(
            &dialog, &DialogCard::signalLoadCycle, &dialog,
            [this](unsigned int cycle, int flight) { program.card.loadCycle(cycle, flight); });
        dialog.show();
    }

    void openCard()
    {
        ASSERT_TRUE(program.card.readContainer(program.cardFolder()));
        dialog.reloadCardInfo();
    }
    QTreeWidget& tree(const char* name)
    {
        return *dialog.findChild<QTreeWidget*>(QLatin1String(name));
    }
    static void rest() { QTest::qWait(kRestMs + kMarginMs); }

    TestProgram program;
    DialogCard dialog{program.card};
    QSignalSpy loadsCycle;
    std::optional<QSignalSpy> loadsFiles;
};

} // namespace

TEST_F(DialogCardTest, SaysWhatToDoWithoutACard)
{
    const auto* hint = dialog.findChild<WidgetHint*>();
    EXPECT_TRUE(hint->isVisible());
    EXPECT_EQ(hint->hint(), QStringLiteral("No card open. Open the folder of a data card."));

    openCard();
    EXPECT_FALSE(hint->isVisible());

    const QTemporaryDir empty;
    ASSERT_TRUE(program.card.readContainer(empty.path()));
    dialog.reloadCardInfo();
    EXPECT_TRUE(hint->isVisible());
    EXPECT_TRUE(hint->hint().startsWith(QStringLiteral("No record files in ")));
}

TEST_F(DialogCardTest, ListsCyclesAndFilesInCardOrder)
{
    openCard();
    const QTreeWidget& cycles = tree("treeCycles");
    ASSERT_EQ(cycles.topLevelItemCount(), 2);
    EXPECT_EQ(cycles.topLevelItem(0)->text(0),
              QStringLiteral("Cycle 1 12.3.2024 8:06:51 (00:04:39)"));
    EXPECT_EQ(cycles.topLevelItem(1)->text(0), QStringLiteral("Cycle 2 Unknown Date (00:01:29)"));

    const QTreeWidget& raw = tree("treeRaw");
    ASSERT_EQ(raw.topLevelItemCount(), 3);
    EXPECT_EQ(raw.topLevelItem(1)->text(0), QStringLiteral("0002.CAN"));
    EXPECT_EQ(raw.topLevelItem(1)->text(1), QStringLiteral("12.3.2024 8:10:00"));
    EXPECT_EQ(raw.topLevelItem(0)->child(10)->text(0), QStringLiteral("Samples Total: 360"));
}

TEST_F(DialogCardTest, LoadsOnlyTheLastChoiceOfAQuickSweep)
{
    openCard();
    QTreeWidget& raw = tree("treeRaw");
    QTreeWidget& cycles = tree("treeCycles");
    cycles.setCurrentItem(cycles.topLevelItem(0));
    for (int i = 2; i >= 0; --i) { // from the last to the first
        raw.topLevelItem(i)->setSelected(true);
        QTest::qWait(kMarginMs);
        EXPECT_EQ(loadsFiles->count(), 0);
    }
    EXPECT_TRUE(cycles.selectedItems().isEmpty());
    rest();
    ASSERT_EQ(loadsFiles->count(), 1);
    QStringList names;
    for (const QString& path : loadsFiles->at(0).at(0).value<std::list<QString>>()) {
        names.append(CardContainer::name(path));
    }
    EXPECT_EQ(names.join(QLatin1Char(' ')), QStringLiteral("0001.CAN 0002.CAN 0003.CAN"));

    cycles.setCurrentItem(cycles.topLevelItem(1));
    dialog.reloadCardInfo(); // another card
    rest();
    EXPECT_EQ(loadsCycle.count(), 0);
}

TEST_F(DialogCardTest, ShowsFlightsBelowALoadedCycleAndKeepsThemWhenOneIsChosen)
{
    openCard();
    QTreeWidget& cycles = tree("treeCycles");
    QTreeWidgetItem* cycle = cycles.topLevelItem(0);
    cycles.setCurrentItem(cycle);
    EXPECT_EQ(cycle->childCount(), 0);
    rest();
    ASSERT_EQ(loadsCycle.count(), 1);
    EXPECT_EQ(loadsCycle.at(0).at(0).toUInt(), 1U);
    EXPECT_EQ(loadsCycle.at(0).at(1).toInt(), -1);
    ASSERT_EQ(cycle->childCount(), 2);
    EXPECT_TRUE(cycle->isExpanded());
    // Confirmed by the twelfth fast sample, 51 s after power-up at 8:06:51 minus 10 s.
    EXPECT_EQ(cycle->child(0)->text(0), QStringLiteral("Flight 1 08:07:42 (00:00:29)"));

    QTreeWidgetItem* flight = cycle->child(1);
    cycles.setCurrentItem(flight);
    rest();
    ASSERT_EQ(loadsCycle.count(), 2);
    EXPECT_EQ(loadsCycle.at(1).at(1).toInt(), 1);
    EXPECT_EQ(cycles.currentItem(), flight);
    EXPECT_TRUE(flight->isSelected());

    // Loading the cycle again leaves its lines, and whether they are open, alone.
    cycle->setExpanded(false);
    cycles.setCurrentItem(cycle);
    rest();
    EXPECT_EQ(cycle->child(1), flight);
    EXPECT_FALSE(cycle->isExpanded());
}

TEST_F(DialogCardTest, IsUsedByKeyboardAndCopies)
{
    openCard();
    QApplication::setActiveWindow(&dialog);
    QTreeWidget& cycles = tree("treeCycles");
    cycles.setFocus();
    QTest::keyClick(&cycles, Qt::Key_Down);
    QTest::keyClick(&cycles, Qt::Key_Down);
    rest();
    ASSERT_EQ(loadsCycle.count(), 1);
    EXPECT_EQ(loadsCycle.at(0).at(0).toUInt(), 2U);
    EXPECT_EQ(cycles.topLevelItem(1)->childCount(), 0) << "it has no flights";

    QApplication::clipboard()->clear();
    QTest::keyClick(&cycles, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().contains(QStringLiteral("Cycle 2")));
}
