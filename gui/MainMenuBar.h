#pragma once

#include "gui/MainActions.h"

#include <QMenuBar>

namespace VELIX {

class Property;
class RecentMenu;

/// The main window's menus: all actions, and what was opened lately.
class MainMenuBar : public QMenuBar
{
    Q_OBJECT

public:
    MainMenuBar(const MainActions& actions, Property& settings, QWidget* parent = nullptr);

    /// Puts a card's folder or a project file first among those that were opened lately.
    void addRecentCard(const QString& path);
    void addRecentProject(const QString& path);

signals:
    /// The user's choices among what was opened lately.
    void signalCard(const QString& path);
    void signalProject(const QString& path);
    /// The menu "Extras" is about to be shown.
    void signalExtras();

private:
    QMenu* addActionsAsMenu(const QString& title, const std::vector<QAction*>& actions);

    RecentMenu* mRecentCards;
    RecentMenu* mRecentProjects;
};

} // namespace VELIX
