#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <utility>

namespace VELIX::Test {

/// Answers one dialog that keeps whoever opens it waiting: make it first, then open the dialog.
///
/// It looks for a modal window of the wanted class, and so leaves progress and other boxes alone.
template <typename Dialog>
class ModalAnswer
{
public:
    explicit ModalAnswer(std::function<void(Dialog&)> answer) : mAnswer(std::move(answer))
    {
        mTimer.setInterval(kTickMs);
        QObject::connect(&mTimer, &QTimer::timeout, [this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (auto* dialog = qobject_cast<Dialog*>(modal)) {
                mTimer.stop();
                QApplication::setActiveWindow(dialog); // no window manager does it
                mGiven = true;
                mAnswer(*dialog);
            } else if (modal != nullptr && ++mTicks > kMostTicks) {
                modal->close(); // or the test would wait for ever
            }
        });
        mTimer.start();
    }

    /// Whether the dialog came up.
    bool isGiven() const { return mGiven; }

private:
    static constexpr int kTickMs = 20;
    static constexpr int kMostTicks = 10000 / kTickMs;

    std::function<void(Dialog&)> mAnswer;
    QTimer mTimer;
    bool mGiven = false;
    int mTicks = 0;
};

} // namespace VELIX::Test
