#include "views/graph/GraphCommandBar.h"

#include "gui/look/ImageHandler.h"
#include "gui/look/WrapLayout.h"

#include <QAction>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>

namespace VELIX {

namespace {

constexpr int kIconSize = 24;
constexpr int kGap = 4;
constexpr int kGroupGap = 12; // together with the gap: 16

/// The tip, with the key in brackets.
QString tipOf(const QAction& action)
{
    return QStringLiteral("%1 (%2)").arg(action.text(),
                                         action.shortcut().toString(QKeySequence::NativeText));
}

} // namespace

GraphCommandBar::GraphCommandBar(QWidget* parent) : QWidget(parent), mGroup(new QButtonGroup(this))
{
    mGroup->setExclusive(false); // the modes are checked as the graph is, not by each other
    auto* rows = new WrapLayout(this, kGap);
    rows->setContentsMargins(kGap, kGap, kGap, kGap);
    createCommands();
    createActions();
    createSnapshotMenu();
}

bool GraphCommandBar::isChecked(EGraphCommand command) const
{
    return mGroup->button(command)->isChecked();
}

void GraphCommandBar::setChecked(EGraphCommand command, bool checked)
{
    mGroup->button(command)->setChecked(checked);
}

/// Buttons that belong together also wrap together.
void GraphCommandBar::startGroup()
{
    auto* group = new QWidget(this);
    mRow = new QHBoxLayout(group);
    mRow->setContentsMargins(0, 0, kGroupGap, 0);
    mRow->setSpacing(kGap);
    layout()->addWidget(group);
}

QToolButton* GraphCommandBar::addButton(const QString& tip)
{
    auto* button = new QToolButton;
    button->setAutoRaise(true);
    button->setIconSize({kIconSize, kIconSize});
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the keys to the graph
    mRow->addWidget(button);
    return button;
}

void GraphCommandBar::createCommands()
{
    const auto add = [&](EGraphCommand id, const char* icon, const QString& tip, bool checkable) {
        QToolButton* button = addButton(tip);
        button->setObjectName(QStringLiteral("buttonGraph%1").arg(id));
        button->setIcon(ImageHandler::instance().icon(QLatin1String(icon)));
        button->setCheckable(checkable);
        mGroup->addButton(button, id);
        return button;
    };
    startGroup();
    add(eGraphZoomIn, "zoom-in", tr("Zoom In"), false);
    add(eGraphZoomOut, "zoom-out", tr("Zoom Out"), false);
    add(eGraphZoomAll, "zoom-fit", tr("Zoom 1:1"), false);
    add(eGraphZoomMarker, "zoom-marker", tr("Zoom Marker"), false);
    add(eGraphClear, "clear", tr("Clear All"), false);
    startGroup();
    QToolButton* automatic = add(eGraphAuto, "graph-auto", tr("Automatic Mode"), true);
    automatic->setText(tr("Auto"));
    automatic->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    add(eGraphSplit, "graph-split", tr("Split Mode"), true);
    add(eGraphSingle, "graph-single", tr("Single Graph Mode"), true);
    add(eGraphReset, "graph-reset", tr("Reset all to default"), false);
    startGroup();
    add(eGraphSetup, "preferences", tr("Setup"), false);
    add(eGraphSnapshot, "snapshot", tr("Snapshot"), false);
}

void GraphCommandBar::createActions()
{
    const auto add = [&](const char* name, const char* icon, const QString& text,
                         const QKeySequence& key) {
        auto* action = new QAction(ImageHandler::instance().icon(QLatin1String(icon)), text, this);
        action->setObjectName(QLatin1String(name));
        action->setShortcut(key);
        // The view above holds the action, so that its key works only while the graph is shown.
        action->setShortcutContext(Qt::WindowShortcut);
        QToolButton* button = addButton({});
        button->setDefaultAction(action);
        action->setToolTip(key.isEmpty() ? text : tipOf(*action));
        button->setAccessibleName(text);
        return action;
    };
    startGroup();
    mBack = add("actionGraphBack", "history-back", tr("Previous visible range"),
                QKeySequence(QStringLiteral("Alt+Left")));
    mForward = add("actionGraphForward", "history-forward", tr("Next visible range"),
                   QKeySequence(QStringLiteral("Alt+Right")));
    startGroup();
    mStatistic = add("actionGraphStatistic", "graph-statistic",
                     tr("Minimum, maximum and average between the markers"), {});
    mStatistic->setCheckable(true);
}

void GraphCommandBar::createSnapshotMenu()
{
    auto* button = qobject_cast<QToolButton*>(mGroup->button(eGraphSnapshot));
    auto* menu = new QMenu(button);
    mSave = menu->addAction(tr("Save Snapshot ..."));
    mCopy = menu->addAction(tr("Copy to Clipboard"));
    button->setMenu(menu);
    button->setPopupMode(QToolButton::MenuButtonPopup);
}

} // namespace VELIX
