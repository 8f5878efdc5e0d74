#pragma once

#include <QObject>
#include <QString>

#include <initializer_list>
#include <map>
#include <vector>

class QAction;
class QActionGroup;

namespace VELIX {

/// The actions of the main window's menus. The numbers are fixed: they are printed.
enum EAction : int {
    eActionNewProject = 0,
    eActionOpenProject = 1,
    eActionOpenCard = 2,
    eActionSaveProject = 4,
    eActionSaveProjectAs = 5,
    eActionQuit = 6,
    eActionAbout = 8,
    eActionProfile = 9,
    eActionHelp = 10,
    eActionPreferences = 15,
    eActionExportKml = 17,
    eActionExportCsv = 18,
    eActionPrint = 100,
    eActionSavePdf = 101
};

/// The main window's actions, made from a table and found by their number.
class MainActions : public QObject
{
    Q_OBJECT

public:
    enum class Menu { File, Extras, Help };

    explicit MainActions(QObject* parent = nullptr);

    /// Null for a number that no action has.
    QAction* action(int id) const;
    /// In the order of the table; null is a separator.
    const std::vector<QAction*>& menu(Menu menu) const;
    /// All actions belong to it; each carries its number as its data.
    QActionGroup* group() const { return mGroup; }
    /// Takes the entries of what was opened lately; empty at first.
    QActionGroup* recentGroup() const { return mRecentGroup; }

    /// Disables actions with the reason in their tool tips, or enables them for an empty reason.
    void setUnavailable(std::initializer_list<int> ids, const QString& reason);

private:
    QActionGroup* mGroup;
    QActionGroup* mRecentGroup;
    std::map<int, QAction*> mActions;
    std::map<Menu, std::vector<QAction*>> mMenus;
};

} // namespace VELIX
