#include "gui/DropTarget.h"

#include "gui/DroppedPath.h"

#include <QDropEvent>
#include <QLineEdit>

namespace VELIX {

DropTarget::DropTarget(QWidget* window) : QObject(window)
{
    // A drop reaches the window from every pane, since none of them wants it.
    window->setAcceptDrops(true);
    for (QLineEdit* editor : window->findChildren<QLineEdit*>()) {
        editor->setAcceptDrops(false); // it would take the path as text
    }
    window->installEventFilter(this);
}

bool DropTarget::eventFilter(QObject* window, QEvent* event)
{
    if (event->type() == QEvent::DragEnter) {
        auto& enter = static_cast<QDragEnterEvent&>(*event);
        if (DroppedPath::of(enter.mimeData()).kind != DroppedPath::Kind::Nothing) {
            enter.acceptProposedAction();
        }
        return true;
    }
    if (event->type() == QEvent::Drop) {
        drop(static_cast<QDropEvent&>(*event));
        return true;
    }
    return QObject::eventFilter(window, event);
}

void DropTarget::drop(QDropEvent& event)
{
    const DroppedPath dropped = DroppedPath::of(event.mimeData());
    event.acceptProposedAction();
    if (dropped.kind == DroppedPath::Kind::Card) {
        emit signalCard(dropped.path);
    } else if (dropped.kind == DroppedPath::Kind::Project) {
        emit signalProject(dropped.path);
    }
}

} // namespace VELIX
