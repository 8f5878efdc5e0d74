#include "gui/DialogStatusBar.h"
#include "gui/LoadSummary.h"
#include "tests/gui/TestProgram.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QProgressBar>
#include <QTest>

using namespace VELIX;
using namespace VELIX::Test;

TEST(DialogStatusBar, ShowsProgressOnlyWhileThereIsWork)
{
    DialogStatusBar bar;
    bar.show();
    const auto* progress = bar.findChild<QProgressBar*>();
    EXPECT_FALSE(progress->isVisible());

    bar.beginWork(QStringLiteral("Loading"));
    for (const int percent : {0, 100, 0, 50}) { // each file runs from 0 to 100
        bar.setProgress(percent);
        EXPECT_TRUE(progress->isVisible()) << percent;
        EXPECT_EQ(progress->value(), percent);
    }
    bar.setProgress(100000);
    EXPECT_EQ(progress->value(), 100);
    bar.endWork();
    EXPECT_FALSE(progress->isVisible());

    bar.setProgress(40); // reported by others
    EXPECT_TRUE(progress->isVisible());
    bar.setProgress(100);
    EXPECT_FALSE(progress->isVisible());
}

TEST(DialogStatusBar, RepaintsTheWindowDuringLongWork)
{
    struct Window : QWidget
    {
        void paintEvent(QPaintEvent*) override { ++paints; }
        int paints = 0;
    } window;
    DialogStatusBar bar(&window);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    bar.beginWork(QStringLiteral("Loading"));
    window.paints = 0;
    bar.setProgress(1);
    EXPECT_EQ(window.paints, 0);
    QTest::qSleep(300); // no events
    bar.setProgress(2);
    bar.setProgress(3);
    EXPECT_EQ(window.paints, 1);
}

TEST(DialogStatusBar, KeepsWhatIsLoadedBesideANotice)
{
    DialogStatusBar bar;
    const auto* label = bar.findChild<QLabel*>();
    bar.showLoaded(QStringLiteral("Cycle 1"));
    bar.showNotice(QStringLiteral("A file is damaged."));
    EXPECT_TRUE(label->text().startsWith(QStringLiteral("Cycle 1")));
    EXPECT_TRUE(label->text().endsWith(QStringLiteral("A file is damaged.")));
    bar.beginWork(QStringLiteral("Loading"));
    EXPECT_EQ(label->text(), QStringLiteral("Loading"));
    bar.endWork();
    bar.showNotice({});
    EXPECT_EQ(label->text(), QStringLiteral("Cycle 1"));
}

TEST(LoadSummary, NamesWhatIsLoaded)
{
    TestProgram program;
    ASSERT_TRUE(demoProfile().load(program.profile));
    ASSERT_TRUE(writeCard(program.cardFolder()));
    ASSERT_TRUE(program.card.readContainer(program.cardFolder()));
    ASSERT_EQ(program.card.loadCycle(1, 1), 1);
    EXPECT_EQ(LoadSummary::cycle(program.card, 1, -1), QStringLiteral("Cycle 1"));
    EXPECT_EQ(LoadSummary::cycle(program.card, 1, 1), QStringLiteral("Cycle 1, flight 2"));
    EXPECT_EQ(LoadSummary::cycle(program.card, 1, 2), QStringLiteral("Cycle 1"));
    EXPECT_EQ(LoadSummary::files(1), QStringLiteral("1 file"));
    EXPECT_EQ(LoadSummary::files(3), QStringLiteral("3 files"));
}
