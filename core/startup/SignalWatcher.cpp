#include "core/startup/SignalWatcher.h"

#include "core/Diagnostics.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace VELIX {

namespace {

// A handler may do little more than write to a file descriptor, and it has no other way to find it.
volatile std::sig_atomic_t gWriteEnd = -1;

extern "C" void reportSignal(int /*number*/)
{
    const int before = errno;
    const char byte = 0;
    // Nothing to do about a full pipe: one report is as good as many.
    [[maybe_unused]] const ssize_t written = write(gWriteEnd, &byte, 1);
    errno = before;
}

void handleWith(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int number : {SIGINT, SIGTERM}) {
        sigaction(number, &action, nullptr);
    }
}

} // namespace

SignalWatcher::SignalWatcher()
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        Diagnostics::print("SignalWatcher: no pipe, signals end the program at once\n");
        return;
    }
    mReadEnd = ends[0];
    gWriteEnd = ends[1];
    handleWith(reportSignal);
}

SignalWatcher::~SignalWatcher()
{
    if (mReadEnd < 0) {
        return;
    }
    handleWith(SIG_DFL);
    close(gWriteEnd);
    close(mReadEnd);
    gWriteEnd = -1;
}

void SignalWatcher::start(std::function<void()> onSignal)
{
    if (mReadEnd < 0) {
        return;
    }
    mOnSignal = std::move(onSignal);
    mNotifier = std::make_unique<QSocketNotifier>(mReadEnd, QSocketNotifier::Read);
    // By name, since the signal's overloads cannot be distinguished by their addresses.
    connect(mNotifier.get(), SIGNAL(activated(QSocketDescriptor, QSocketNotifier::Type)), this,
            SLOT(slotActivated()));
}

void SignalWatcher::slotActivated()
{
    std::array<char, 64> bytes{};
    while (read(mReadEnd, bytes.data(), bytes.size()) > 0) {
    }
    mOnSignal();
}

} // namespace VELIX
