#include "card/CardContainer.h"
#include "core/Property.h"
#include "profile/Profile.h"
#include "tests/gui/FakeDialogs.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "views/DialogData.h"
#include "views/DialogDataGraph.h"
#include "views/DialogDataLimit.h"
#include "views/DialogDataWarning.h"
#include "views/WidgetGraph.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>

namespace VELIX {
namespace {

using VELIX::Test::FakeDialogs;
using VELIX::Test::ProfileBuilder;
using VELIX::Test::RecordBuilder;

struct GraphInDataWindowTest : ::testing::Test
{
    void SetUp() override
    {
        ProfileBuilder builder;
        builder.device("Lane A").parameter(500, QStringLiteral("Oil"), "FLOAT");
        ASSERT_TRUE(builder.load(profile));
        ProfileBuilder::selectAll(profile);
        RecordBuilder record;
        for (int i = 0; i <= 1000; ++i) {
            record.at(100.0 + i).id(500).floatValue(static_cast<float>(i));
        }
        ASSERT_TRUE(record.write(folder.filePath(QStringLiteral("1.CAN"))));
        ASSERT_TRUE(card.readContainer(folder.path()));
        ASSERT_EQ(card.loadFiles({QStringLiteral("1.CAN")}), 1);
        window = std::make_unique<DialogData>(profile, card, settings, dialogs, false);
        window->resize(900, 700);
        window->show();
        window->updateProfile();
        window->updateRecord();
    }
    template <class T>
    T& view()
    {
        return *window->findChild<T*>();
    }
    const GraphModel& model() { return view<DialogDataGraph>().graph().model(); }

    QTemporaryDir folder;
    Profile profile;
    CardContainer card{profile};
    Property settings;
    FakeDialogs dialogs;
    std::unique_ptr<DialogData> window;
};

TEST_F(GraphInDataWindowTest, TheCursorOfTheGraphIsTheCommonOne)
{
    emit view<WidgetGraph>().signalCursor(512.25F, 1.0);
    EXPECT_EQ(window->cursorTime(), 512.25);
    emit view<DialogDataLimit>().signalTime(600.0);
    EXPECT_EQ(model().cursorTime(), 600.0);
}

TEST_F(GraphInDataWindowTest, ListsShowTheirEventsInTheGraph)
{
    const auto* stack = window->findChild<QStackedWidget*>(QStringLiteral("viewStack"));
    ASSERT_NE(stack->currentWidget(), &view<DialogDataGraph>());
    emit view<DialogDataLimit>().signalShowInGraph(300.0);
    EXPECT_EQ(stack->currentWidget(), &view<DialogDataGraph>());
    EXPECT_NEAR(model().xmin(), 285.0, 1e-6);
    EXPECT_NEAR(model().xmax(), 315.0, 1e-6);
    emit view<DialogDataWarning>().signalShowInGraph(700.0);
    EXPECT_NEAR(model().xmin(), 685.0, 1e-6);
}

TEST_F(GraphInDataWindowTest, NoticesOfTheGraphReachTheWindow)
{
    QSignalSpy notice(window.get(), &DialogData::signalNotice);
    dialogs.file = folder.filePath(QStringLiteral("no/folder/a.bmp"));
    view<DialogDataGraph>().saveSnapshot();
    EXPECT_EQ(notice.count(), 1);
}

} // namespace
} // namespace VELIX
