#include "gui/MainActions.h"

#include "gui/look/ImageHandler.h"

#include <QAction>
#include <QActionGroup>

namespace VELIX {

namespace {

struct Entry
{
    int id;
    MainActions::Menu menu;
    bool separatorBefore;
    const char* text;
    const char* shortcut;
    const char* statusTip;
    const char* iconText; ///< null: the text
    const char* icon;
};

using Menu = MainActions::Menu;

// clang-format off
constexpr Entry kEntries[] = {
    {eActionNewProject, Menu::File, false, QT_TRANSLATE_NOOP("VELIX::MainActions", "&New Project"), "Ctrl+N",
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Create new Project"), nullptr, "project-new"},
    {eActionOpenProject, Menu::File, false, QT_TRANSLATE_NOOP("VELIX::MainActions", "&Open Project"), "Ctrl+O",
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Open Project"),
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Open Project File"), "project-open"},
    {eActionSaveProject, Menu::File, false, QT_TRANSLATE_NOOP("VELIX::MainActions", "&Save Project"), "Ctrl+S",
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Save Project"),
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Save Project File"), "project-save"},
    {eActionSaveProjectAs, Menu::File, false, QT_TRANSLATE_NOOP("VELIX::MainActions", "&Save Project as"), nullptr,
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Save Project as"),
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Save Project File as"), "project-save-as"},
    {eActionOpenCard, Menu::File, true, QT_TRANSLATE_NOOP("VELIX::MainActions", "&Open Data Folder"), "Ctrl+C",
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Open Data Folder"), nullptr, "card-open"},
    {eActionPrint, Menu::File, true, QT_TRANSLATE_NOOP("VELIX::MainActions", "&Print ..."), "Ctrl+P",
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Print the page in front"), nullptr, "print"},
    {eActionSavePdf, Menu::File, false, QT_TRANSLATE_NOOP("VELIX::MainActions", "Save as PDF ..."), nullptr,
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Save the page in front as a PDF file"), nullptr, "save-pdf"},
    {eActionQuit, Menu::File, true, QT_TRANSLATE_NOOP("VELIX::MainActions", "&Quit"), "Ctrl+Q",
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Quit Application"), nullptr, "quit"},
    {eActionExportKml, Menu::Extras, false, QT_TRANSLATE_NOOP("VELIX::MainActions", "Export Google KML File"), nullptr,
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Export Google Earth KML File"), nullptr, "export-kml"},
    {eActionExportCsv, Menu::Extras, false, QT_TRANSLATE_NOOP("VELIX::MainActions", "Export CSV File"), nullptr,
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Export CSV File"), nullptr, "export-csv"},
    {eActionProfile, Menu::Extras, true, QT_TRANSLATE_NOOP("VELIX::MainActions", "Profile"), nullptr,
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Show Profile Information"), nullptr, "profile"},
    {eActionPreferences, Menu::Extras, false, QT_TRANSLATE_NOOP("VELIX::MainActions", "Preferences"), nullptr,
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Open Preferences Dialog"), nullptr, "preferences"},
    {eActionHelp, Menu::Help, false, QT_TRANSLATE_NOOP("VELIX::MainActions", "Help"), "F1",
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Help Window"), nullptr, "help"},
    {eActionAbout, Menu::Help, true, QT_TRANSLATE_NOOP("VELIX::MainActions", "About"), nullptr,
     QT_TRANSLATE_NOOP("VELIX::MainActions", "Show License Information"), nullptr, "about"},
};
// clang-format on

/// The status tip, which says more than the text, with the shortcut in brackets.
QString toolTip(const QAction& action)
{
    const QString key = action.shortcut().toString(QKeySequence::NativeText);
    return key.isEmpty() ? action.statusTip()
                         : QStringLiteral("%1 (%2)").arg(action.statusTip(), key);
}

} // namespace

MainActions::MainActions(QObject* parent)
    : QObject(parent), mGroup(new QActionGroup(this)), mRecentGroup(new QActionGroup(this))
{
    mGroup->setExclusive(false);
    const ImageHandler& images = ImageHandler::instance();
    for (const Entry& entry : kEntries) {
        auto* action = new QAction(images.icon(QLatin1String(entry.icon)), tr(entry.text), this);
        action->setData(entry.id);
        action->setStatusTip(tr(entry.statusTip));
        if (entry.shortcut != nullptr) {
            action->setShortcut(QKeySequence(QLatin1String(entry.shortcut)));
        }
        if (entry.iconText != nullptr) {
            action->setIconText(tr(entry.iconText));
        }
        action->setToolTip(toolTip(*action));
        mGroup->addAction(action);
        mActions[entry.id] = action;
        std::vector<QAction*>& menu = mMenus[entry.menu];
        if (entry.separatorBefore) {
            menu.push_back(nullptr);
        }
        menu.push_back(action);
    }
}

QAction* MainActions::action(int id) const
{
    const auto found = mActions.find(id);
    return found == mActions.end() ? nullptr : found->second;
}

const std::vector<QAction*>& MainActions::menu(Menu menu) const
{
    return mMenus.at(menu);
}

void MainActions::setUnavailable(std::initializer_list<int> ids, const QString& reason)
{
    for (const int id : ids) {
        if (QAction* a = action(id)) {
            a->setEnabled(reason.isEmpty());
            a->setToolTip(reason.isEmpty() ? toolTip(*a) : reason);
        }
    }
}

} // namespace VELIX
