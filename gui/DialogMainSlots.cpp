// What the main window does on the user's actions; its construction is in DialogMain.cpp.

#include "card/CardContainer.h"
#include "core/Diagnostics.h"
#include "core/Property.h"
#include "gui/CardLoader.h"
#include "gui/DialogMain.h"
#include "gui/DialogStatusBar.h"
#include "gui/DroppedPath.h"
#include "gui/ExportController.h"
#include "gui/MainActions.h"
#include "gui/MainToolBar.h"
#include "gui/RecentMenu.h"
#include "gui/card/DialogCard.h"
#include "gui/dialogs/DialogService.h"
#include "gui/help/DialogAbout.h"
#include "gui/help/DialogHelp.h"
#include "gui/preferences/DialogPreferences.h"
#include "gui/print/PrintController.h"
#include "gui/profile/DialogProfile.h"
#include "gui/profile/DialogProfileInfo.h"
#include "gui/project/Project.h"
#include "profile/Profile.h"
#include "views/common/Printable.h"
#include "views/window/DialogData.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace VELIX {

namespace {

constexpr const char* kLastPath = "LastPath";
constexpr const char* kUnit = "Unit";

void present(QWidget& dialog)
{
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

bool hasVariant(const Profile& profile, const QString& name)
{
    const auto& variants = profile.variants();
    return std::any_of(variants.begin(), variants.end(),
                       [&](const ProfileVariant& variant) { return variant.name == name; });
}

} // namespace

void DialogMain::slotMenu(QAction* action)
{
    const int id = action->data().toInt();
    Diagnostics::print("DialogMain::slotMenu id %d\n", id);
    switch (id) {
    case eActionNewProject:
        finishProjectAction(mProjects.newProject());
        break;
    case eActionOpenProject:
        finishProjectAction(mProjects.openProject());
        break;
    case eActionOpenCard:
        openCard();
        break;
    case eActionSaveProject:
    case eActionSaveProjectAs:
        mProjects.saveProject(id == eActionSaveProjectAs);
        finishSaving();
        break;
    case eActionQuit:
        cleanup();
        mTimerStart.stop();
        close();
        break;
    case eActionHelp:
        showHelp();
        break;
    case eActionAbout:
        present(*mDialogAbout);
        break;
    case eActionProfile:
        present(*mDialogProfileInfo);
        break;
    case eActionPrint:
    case eActionSavePdf:
        printPage(id);
        break;
    case eActionPreferences:
        present(*mDialogPreferences);
        break;
    case eActionExportKml:
        mExports->exportKml();
        break;
    case eActionExportCsv:
        mExports->exportCsv();
        break;
    default:
        break;
    }
    updateEnabled();
}

// Each of the menus opens its entries itself, since it knows what they are.
void DialogMain::slotMenuRecent(QAction* /*action*/) {}

void DialogMain::slotMenuPrefAbout()
{
    updateEnabled();
}

/// Opens the manual at what the user has at hand.
void DialogMain::showHelp()
{
    const QWidget* focus = QApplication::focusWidget();
    const auto holds = [focus](const QWidget* pane) {
        return focus != nullptr && pane->isAncestorOf(focus);
    };
    mDialogHelp->showPage(holds(mDialogCard)      ? QStringLiteral("cards")
                          : holds(mDialogProfile) ? QStringLiteral("parameters")
                                                  : mDialogData->helpTopic());
}

void DialogMain::finishProjectAction(bool done)
{
    if (done) {
        showSelection();
        updateProfiles();
        updateTitle();
    }
    finishSaving();
}

/// Tells what went wrong, and lists a file of the user's own among the recent ones.
void DialogMain::finishSaving()
{
    mStatusBar->showNotice(mProjects.lastError());
    if (mRecentProjects != nullptr && !mProjects.isRunFile()) {
        mRecentProjects->add(mProjects.file());
    }
}

void DialogMain::openProject(const QString& path)
{
    finishProjectAction(mProjects.openFile(path));
    updateEnabled();
}

void DialogMain::showSelection()
{
    mDialogProfile->updateProject();
    mDialogData->updateProfile();
}

void DialogMain::openCard()
{
    const QString path = mDialogs.folder(this, tr("Open SD Card"), setting(kLastPath));
    if (!path.isEmpty()) {
        openCard(path);
    }
}

void DialogMain::openCard(const QString& path)
{
    if (!loadRecords(path)) {
        return;
    }
    mContext.settings.setString(kLastPath, path.toStdString());
    mContext.settings.writeXmlFile();
    if (mRecentCards != nullptr) {
        mRecentCards->add(path);
    }
    updateTitle();
}

bool DialogMain::loadRecords(const QString& path)
{
    return mLoader->openCard(path);
}

void DialogMain::reloadCard()
{
    const QString path = setting(kLastPath);
    if (!path.isEmpty()) {
        loadRecords(path);
    }
}

void DialogMain::dragEnterEvent(QDragEnterEvent* event)
{
    if (DroppedPath::of(event->mimeData()).kind != DroppedPath::Kind::Nothing) {
        event->acceptProposedAction();
    }
}

void DialogMain::dropEvent(QDropEvent* event)
{
    const DroppedPath dropped = DroppedPath::of(event->mimeData());
    event->acceptProposedAction();
    if (dropped.kind == DroppedPath::Kind::Card) {
        openCard(dropped.path);
    } else if (dropped.kind == DroppedPath::Kind::Project) {
        openProject(dropped.path);
    }
}

void DialogMain::slotLoadRecord(const std::list<QString>& files)
{
    if (mExports->isWriting()) {
        return; // a choice from just before, when its delay ends: the record is in use
    }
    mLoader->loadFiles(files);
    updateEnabled();
}

void DialogMain::slotLoadCycle(unsigned int cycle, int flight)
{
    if (mExports->isWriting()) {
        return; // a choice from just before, when its delay ends: the record is in use
    }
    mLoader->loadCycle(cycle, flight);
    updateEnabled();
}

void DialogMain::printPage(int id)
{
    const Printable* page = mDialogData->printablePage();
    if (page == nullptr || !page->unprintableReason().isEmpty()) {
        return;
    }
    const RecordData& record = mContext.card.recordData();
    const QDateTime& date =
        record.flight.dateTime.isValid() ? record.flight.dateTime : record.startDateTime;
    //: Format of a date and time of day on paper
    const QString format = tr("d MMMM yyyy, hh:mm 'UTC'");
    const PrintHeader header{QDir(mLoader->loadedCard()).dirName(), mLoader->loadedName(),
                             QLocale().toString(date, format)};
    if (id == eActionPrint) {
        mPrints->print(*page, header);
    } else {
        mPrints->savePdf(*page, header);
    }
}

void DialogMain::slotCanChanged()
{
    updateEnabled();
}

void DialogMain::slotProfileChanged()
{
    mProjects.setModified();
    mDialogData->updateProfile();
    updateEnabled();
}

void DialogMain::slotProfileChanged(const QString& variant)
{
    Diagnostics::print("slotProfileChanged <%s>\n", variant.toUtf8().constData());
    mProfileSettings.storeVariant(variant);
    mContext.settings.writeXmlFile();
    slotProfileFileChanged(); // reads the variant and refreshes the list of parameters
}

void DialogMain::slotProfileFileChanged()
{
    loadProfile();
    mDialogData->updateProfile();
    mContext.settings.writeXmlFile();
    updateEnabled();
}

void DialogMain::loadProfile()
{
    Profile& profile = mContext.profile;
    mContext.project.rememberSelection();
    const QString file = mProfileSettings.profileFile();
    const bool usable = profile.loadProfile(file) != 0;
    const QString variant = mProfileSettings.variant();
    // A variant of another profile would leave little of this one.
    const bool known = profile.variants().empty() || hasVariant(profile, variant);
    profile.setCurrentVariant(known ? variant : QString());
    mContext.project.restoreSelection();
    fillProfiles();
    mDialogProfile->updateList();
    mDialogData->loadProfile();
    const bool broken = !usable && QFileInfo::exists(file);
    mProfileProblem =
        broken ? tr("The profile %1 cannot be read.").arg(QDir::cleanPath(file)) : QString();
    mStatusBar->showNotice(mProfileProblem);
}

void DialogMain::fillProfiles()
{
    if (mToolBar != nullptr) {
        mToolBar->fillVariants(mContext.profile.variants());
        updateProfiles();
    }
}

void DialogMain::updateProfiles()
{
    if (mToolBar != nullptr) {
        mToolBar->selectVariant(mProfileSettings.variant());
    }
}

void DialogMain::slotUnitChanged(int unit)
{
    mContext.settings.setInt(kUnit, unit);
    mContext.settings.writeXmlFile();
    updateUnit();
}

void DialogMain::updateUnit()
{
    const EUnit unit =
        mContext.settings.getInt(kUnit, eUnitMetric) == eUnitImperial ? eUnitImperial : eUnitMetric;
    mContext.profile.setCurrentUnit(unit);
    if (mToolBar != nullptr) {
        mToolBar->selectUnit(unit);
    }
    mDialogProfile->updateUnits();
    mDialogData->updateProfile();
}

void DialogMain::slotVelixMode(int /*mode*/)
{
    reloadCard();
}

void DialogMain::slotTimeout()
{
    reloadCard();
    if (!mProjects.readLast() && !mProjects.lastError().isEmpty()) {
        mStatusBar->showNotice(mProjects.lastError());
    }
    if (mStatusBar->notice().isEmpty()) {
        mStatusBar->showNotice(mProfileProblem); // a card that was opened has taken it away
    }
    showSelection();
    updateProfiles();
    updateTitle();
    updateEnabled();
}

void DialogMain::updateEnabled()
{
    const Printable* page = mDialogData->printablePage();
    const QString hindrance =
        page == nullptr ? tr("This page cannot be printed. The graph, the event lists and the tow "
                             "statistic can.")
                        : page->unprintableReason();
    mActions->setUnavailable(eActionPrint, hindrance);
    mActions->setUnavailable(eActionSavePdf, hindrance);
    const QString nothingLoaded =
        mContext.card.hasRecord() ? QString() : tr("Load a cycle or a flight to export it");
    mActions->setUnavailable(eActionExportKml, nothingLoaded);
    mActions->setUnavailable(eActionExportCsv, nothingLoaded);
    mActions->setUnavailable(
        eActionSaveProject,
        mProjects.isModified() ? QString() : tr("Nothing has changed since the project was saved"));
}

} // namespace VELIX
