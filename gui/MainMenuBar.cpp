#include "gui/MainMenuBar.h"

#include "gui/RecentMenu.h"

namespace VELIX {

MainMenuBar::MainMenuBar(const MainActions& actions, Property& settings, QWidget* parent)
    : QMenuBar(parent)
{
    QMenu* file = addActionsAsMenu(tr("&File"), actions.menu(MainActions::Menu::File));
    QMenu* extras = addActionsAsMenu(tr("&Extras"), actions.menu(MainActions::Menu::Extras));
    addActionsAsMenu(tr("&Help"), actions.menu(MainActions::Menu::Help));
    connect(extras, &QMenu::aboutToShow, this, &MainMenuBar::signalExtras);

    QActionGroup& group = *actions.recentGroup();
    mRecentCards = new RecentMenu(RecentMenu::Kind::Cards, settings, group, file);
    mRecentProjects = new RecentMenu(RecentMenu::Kind::Projects, settings, group, file);
    connect(mRecentCards, &RecentMenu::signalChosen, this, &MainMenuBar::signalCard);
    connect(mRecentProjects, &RecentMenu::signalChosen, this, &MainMenuBar::signalProject);
    const QList<QAction*> entries = file->actions();
    QAction* next = entries.value(entries.indexOf(actions.action(eActionOpenCard)) + 1);
    file->insertMenu(next, mRecentCards);
    file->insertMenu(next, mRecentProjects);
}

/// actions: null is a separator.
QMenu* MainMenuBar::addActionsAsMenu(const QString& title, const std::vector<QAction*>& actions)
{
    QMenu* menu = addMenu(title);
    menu->setToolTipsVisible(true); // they say why an action is not available
    for (QAction* action : actions) {
        if (action == nullptr) {
            menu->addSeparator();
        } else {
            menu->addAction(action);
        }
    }
    return menu;
}

void MainMenuBar::addRecentCard(const QString& path)
{
    mRecentCards->add(path);
}

void MainMenuBar::addRecentProject(const QString& path)
{
    mRecentProjects->add(path);
}

} // namespace VELIX
