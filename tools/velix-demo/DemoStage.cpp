#include "tools/velix-demo/DemoStage.h"

#include "gui/DialogMain.h"
#include "gui/DialogStatusBar.h"
#include "gui/MainActions.h"
#include "views/window/DialogData.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <QThread>
#include <QToolButton>
#include <QTreeWidget>

#include <cmath>

namespace VELIX {

namespace {

constexpr int kTimeoutMs = 30000;
constexpr unsigned long kPollMs = 10;
constexpr double kReplaySeconds = 0.5;

} // namespace

DemoStage::DemoStage(DialogMain& window) : mWindow(window) {}

bool DemoStage::trigger(int action)
{
    QAction* entry = mWindow.findChild<MainActions*>()->action(action);
    if (entry == nullptr || !entry->isEnabled()) {
        return fail(QStringLiteral("Action %1 is not available.").arg(action));
    }
    entry->trigger();
    return true;
}

bool DemoStage::click(const char* button)
{
    auto* found = mWindow.findChild<QAbstractButton*>(QLatin1String(button));
    if (found == nullptr || !found->isEnabled()) {
        return fail(QStringLiteral("The button %1 cannot be pressed.").arg(QLatin1String(button)));
    }
    found->click();
    return true;
}

bool DemoStage::showView(const char* view)
{
    const auto* stack = mWindow.findChild<QStackedWidget*>(QStringLiteral("viewStack"));
    auto* page = mWindow.findChild<QWidget*>(QLatin1String(view));
    const int index = page == nullptr ? -1 : stack->indexOf(page);
    if (index < 0) {
        return fail(QStringLiteral("There is no view %1.").arg(QLatin1String(view)));
    }
    mWindow.findChild<QTabBar*>(QStringLiteral("tabBar"))->setCurrentIndex(index);
    return true;
}

bool DemoStage::loadCycle(int cycle)
{
    auto* cycles = mWindow.findChild<QTreeWidget*>(QStringLiteral("treeCycles"));
    if (!waitFor([&] { return cycles->topLevelItemCount() > cycle; },
                 QStringLiteral("The cycle is not listed; is there a card in \"LastPath\"?"))) {
        return false;
    }
    const QString before = loaded();
    cycles->setCurrentItem(cycles->topLevelItem(cycle));
    return waitFor([&] { return loaded() != before; }, QStringLiteral("The cycle was not loaded."));
}

bool DemoStage::loadFlight(int cycle, int flight)
{
    auto* cycles = mWindow.findChild<QTreeWidget*>(QStringLiteral("treeCycles"));
    QTreeWidgetItem* item = cycles->topLevelItem(cycle);
    if (item == nullptr || item->childCount() <= flight) {
        return fail(QStringLiteral("The flight was not found in its cycle."));
    }
    const QString before = loaded();
    cycles->setCurrentItem(item->child(flight));
    return waitFor([&] { return loaded() != before; },
                   QStringLiteral("The flight was not loaded."));
}

bool DemoStage::setPosition(double fraction)
{
    auto* slider = mWindow.findChild<QSlider*>(QStringLiteral("sliderPosition"));
    slider->setValue(static_cast<int>(std::lround(fraction * slider->maximum())));
    return true;
}

bool DemoStage::replay()
{
    const auto* data = mWindow.findChild<DialogData*>();
    const double start = data->cursorTime();
    return click("buttonReplay") &&
           waitFor([&] { return data->cursorTime() > start + kReplaySeconds; },
                   QStringLiteral("The replay does not move the cursor.")) &&
           click("buttonStop");
}

bool DemoStage::waitFor(const std::function<bool()>& condition, const QString& sentence)
{
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (clock.elapsed() > kTimeoutMs) {
            return fail(sentence);
        }
        runEventsFor(kPollMs);
    }
    return true;
}

void DemoStage::runEventsFor(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    do {
        QApplication::processEvents();
        QThread::msleep(kPollMs);
    } while (clock.elapsed() < milliseconds);
}

bool DemoStage::fail(const QString& sentence)
{
    if (mError.isEmpty()) {
        mError = sentence;
    }
    return false;
}

QString DemoStage::loaded() const
{
    return mWindow.findChild<DialogStatusBar*>()->loaded();
}

} // namespace VELIX
