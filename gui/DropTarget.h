#pragma once

#include <QObject>

class QDropEvent;
class QWidget;

namespace VELIX {

/// Takes cards and projects that are dropped anywhere onto a window.
class DropTarget : public QObject
{
    Q_OBJECT

public:
    /// window: with all its panes, and this object's owner.
    explicit DropTarget(QWidget* window);

    bool eventFilter(QObject* window, QEvent* event) override;

signals:
    void signalCard(const QString& path);
    void signalProject(const QString& path);

private:
    void drop(QDropEvent& event);
};

} // namespace VELIX
