#pragma once

#include "gui/RecentPaths.h"

#include <QMenu>

class QActionGroup;

namespace VELIX {

/// A menu of what was opened lately. What is gone for good leaves the list when the menu opens.
class RecentMenu : public QMenu
{
    Q_OBJECT

public:
    enum class Kind { Cards, Projects };

    /// group: takes the entries; it outlives the menu.
    RecentMenu(Kind kind, Property& settings, QActionGroup& group, QWidget* parent = nullptr);

    /// Something was opened: it comes first from now on.
    void add(const QString& path);

signals:
    void signalChosen(const QString& path);

private slots:
    void slotFill();

private:
    QAction* addEntry(const QString& path, int number);

    Kind mKind;
    Property& mSettings;
    RecentPaths mPaths;
    QActionGroup& mGroup;
};

} // namespace VELIX
