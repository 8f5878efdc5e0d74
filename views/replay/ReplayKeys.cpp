#include "views/replay/ReplayKeys.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QTextEdit>

namespace VELIX {

ReplayKeys::ReplayKeys(QWidget* widget) : QObject(widget), mWidget(widget)
{
    QShortcut* space = addShortcut(Qt::Key_Space);
    space->setAutoRepeat(false);
    connect(space, &QShortcut::activated, this, &ReplayKeys::signalToggle);
    addStep(QKeySequence(QStringLiteral("Ctrl+Left")), -1.0);
    addStep(QKeySequence(QStringLiteral("Ctrl+Right")), 1.0);
    addStep(QKeySequence(QStringLiteral("Ctrl+Shift+Left")), -10.0);
    addStep(QKeySequence(QStringLiteral("Ctrl+Shift+Right")), 10.0);
    qApp->installEventFilter(this);
}

QShortcut* ReplayKeys::addShortcut(const QKeySequence& keys)
{
    mShortcuts.push_back(new QShortcut(keys, mWidget));
    return mShortcuts.back();
}

void ReplayKeys::addStep(const QKeySequence& keys, double seconds)
{
    connect(addShortcut(keys), &QShortcut::activated, this,
            [this, seconds] { emit signalStep(seconds); });
}

void ReplayKeys::setEnabled(bool enabled)
{
    for (QShortcut* shortcut : mShortcuts) {
        shortcut->setEnabled(enabled);
    }
}

bool ReplayKeys::usesSpace(const QWidget* widget)
{
    if (const auto* list = qobject_cast<const QAbstractItemView*>(widget)) {
        const QModelIndex current = list->currentIndex();
        const Qt::ItemFlags flags = current.flags();
        // All items may be checked by default; only those with a state have a box.
        const bool checks =
            flags.testFlag(Qt::ItemIsUserCheckable) && current.data(Qt::CheckStateRole).isValid();
        const bool edits = flags.testFlag(Qt::ItemIsEditable) &&
                           list->editTriggers() != QAbstractItemView::NoEditTriggers;
        return checks || edits;
    }
    if (const auto* text = qobject_cast<const QTextEdit*>(widget)) {
        return !text->isReadOnly();
    }
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(widget)) {
        return !text->isReadOnly();
    }
    return qobject_cast<const QAbstractButton*>(widget) != nullptr ||
           qobject_cast<const QComboBox*>(widget) != nullptr ||
           qobject_cast<const QLineEdit*>(widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(widget) != nullptr;
}

bool ReplayKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride) {
        return false;
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Space || key->modifiers() != Qt::NoModifier ||
        watched != QApplication::focusWidget() || !usesSpace(QApplication::focusWidget())) {
        return false;
    }
    event->accept();
    return true;
}

} // namespace VELIX
