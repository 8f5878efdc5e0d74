#include "core/startup/SignalWatcher.h"

#include <QTest>

#include <gtest/gtest.h>

#include <csignal>

using namespace VELIX;

namespace {

TEST(SignalWatcher, CallsFromTheEventLoopAndNotFromTheSignal)
{
    for (const int number : {SIGINT, SIGTERM}) {
        int calls = 0;
        SignalWatcher watcher;
        std::raise(number); // kept
        watcher.start([&calls] { ++calls; });
        std::raise(number);
        EXPECT_EQ(calls, 0);
        EXPECT_TRUE(QTest::qWaitFor([&calls] { return calls > 0; }, 5000));
        QTest::qWait(20);
        EXPECT_EQ(calls, 1) << "signals that come together count once";

        std::raise(number);
        EXPECT_TRUE(QTest::qWaitFor([&calls] { return calls == 2; }, 5000));
    }
}

TEST(SignalWatcher, LeavesSignalsAsTheyWereByDefault)
{
    {
        const SignalWatcher watcher;
    }
    struct sigaction action = {};
    sigaction(SIGTERM, nullptr, &action);
    EXPECT_EQ(action.sa_handler, SIG_DFL);
}

} // namespace
