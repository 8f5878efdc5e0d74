#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace VELIX {

/// Turns SIGINT and SIGTERM into a call from the event loop, where windows may be closed and files
/// written. One at a time; with its end the signals end the program at once again.
class SignalWatcher : public QObject
{
    Q_OBJECT

public:
    /// From here on signals are kept.
    SignalWatcher();
    ~SignalWatcher() override;

    /// From here on they are reported, the kept ones first. Needs an application object.
    void start(std::function<void()> onSignal);

private slots:
    void slotActivated();

private:
    std::function<void()> mOnSignal;
    int mReadEnd = -1;
    std::unique_ptr<QSocketNotifier> mNotifier;
};

} // namespace VELIX
