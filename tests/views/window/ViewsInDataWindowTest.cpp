// Views as the window of the data connects them.

#include "card/CardContainer.h"
#include "core/Property.h"
#include "gui/look/Resources.h"
#include "profile/Profile.h"
#include "tests/gui/FakeDialogs.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "views/events/DialogDataLimit.h"
#include "views/events/DialogDataWarning.h"
#include "views/fault/WidgetErrorItem.h"
#include "views/fault/WidgetFaultMatrix.h"
#include "views/graph/DialogDataGraph.h"
#include "views/graph/widget/WidgetGraph.h"
#include "views/window/DialogData.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>

namespace VELIX {
namespace {

using Test::FakeDialogs;
using Test::ProfileBuilder;
using Test::RecordBuilder;

constexpr int kOil = 500;
constexpr int kFaults = 0x4F0;

/// A record from 100 to 1100 s: the oil, and a fault word with bit 4 from 200 s and bit 0 from 300
/// s.
struct ViewsInDataWindowTest : ::testing::Test
{
    void SetUp() override
    {
        initResources();
        builder.device("Lane A").parameter(kOil, QStringLiteral("Oil"), "FLOAT");
        ASSERT_TRUE(builder.load(profile));
        ProfileBuilder::selectAll(profile);
        RecordBuilder record;
        for (int i = 100; i <= 1100; ++i) {
            record.at(i).id(kOil).floatValue(static_cast<float>(i));
        }
        record.id(kFaults).at(200).blongValue(0x10U).at(300).blongValue(1).at(400).blongValue(0);
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
    ProfileBuilder builder;
    Profile profile;
    CardContainer card{profile};
    Property settings;
    FakeDialogs dialogs;
    std::unique_ptr<DialogData> window;
};

TEST_F(ViewsInDataWindowTest, TheGraphIsConnectedToTheWindow)
{
    emit view<WidgetGraph>().signalCursor(512.25F, 1.0);
    EXPECT_EQ(window->cursorTime(), 512.25);
    emit view<DialogDataLimit>().signalTime(600.0);
    EXPECT_EQ(model().cursorTime(), 600.0);

    const auto* stack = window->findChild<QStackedWidget*>(QStringLiteral("viewStack"));
    ASSERT_NE(stack->currentWidget(), &view<DialogDataGraph>());
    emit view<DialogDataLimit>().signalShowInGraph(300.0);
    EXPECT_EQ(stack->currentWidget(), &view<DialogDataGraph>());
    EXPECT_NEAR(model().xmin(), 285.0, 1e-6);
    emit view<DialogDataWarning>().signalShowInGraph(700.0);
    EXPECT_NEAR(model().xmin(), 685.0, 1e-6);

    QSignalSpy notice(window.get(), &DialogData::signalNotice);
    view<DialogDataGraph>().copySnapshot();
    EXPECT_EQ(notice.count(), 1);
}

TEST_F(ViewsInDataWindowTest, ANewProfileMeetsTheOpenRecordAtItsCursor)
{
    emit view<DialogDataLimit>().signalTime(350.0);
    builder.matrix(kFaults, "Lane A");
    ASSERT_TRUE(builder.load(profile));
    window->loadProfile();
    const auto isLit = [this](int bit) {
        return view<WidgetFaultMatrix>().item(bit)->errorState();
    };
    EXPECT_TRUE(isLit(0) && !isLit(4));
    emit view<DialogDataWarning>().signalTime(250.0);
    EXPECT_TRUE(isLit(4) && !isLit(0));
    window->releaseRecord();
    EXPECT_FALSE(isLit(4) || isLit(0));
}

} // namespace
} // namespace VELIX
