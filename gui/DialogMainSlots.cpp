// What the main window does on the user's actions; its construction is in DialogMain.cpp.

#include "card/CardContainer.h"
#include "core/Diagnostics.h"
#include "core/Property.h"
#include "gui/DialogAbout.h"
#include "gui/DialogCard.h"
#include "gui/DialogMain.h"
#include "gui/DialogProfile.h"
#include "gui/DialogProfileInfo.h"
#include "gui/DialogService.h"
#include "gui/DialogStatusBar.h"
#include "gui/ExportController.h"
#include "gui/LoadSummary.h"
#include "gui/MainActions.h"
#include "gui/Project.h"
#include "gui/QwtComboBox.h"
#include "profile/Profile.h"
#include "views/DialogData.h"

#include <QAction>
#include <QApplication>
#include <QSignalBlocker>

#include <algorithm>

namespace VELIX {

namespace {

constexpr const char* kLastPath = "LastPath";
constexpr const char* kUnit = "Unit";

/// The busy cursor while one exists.
struct WaitCursor
{
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

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
        mStatusBar->showNotice(mProjects.lastError());
        break;
    case eActionQuit:
        cleanup();
        mTimerStart.stop();
        close();
        break;
    case eActionAbout:
        present(*mDialogAbout);
        break;
    case eActionProfile:
        present(*mDialogProfileInfo);
        break;
    case eActionExportCsv:
        mExports->exportCsv();
        break;
    default:
        break;
    }
    updateEnabled();
}

void DialogMain::slotMenuRecent(QAction* /*action*/) {}

void DialogMain::slotMenuPrefAbout()
{
    updateEnabled();
}

void DialogMain::finishProjectAction(bool done)
{
    mStatusBar->showNotice(mProjects.lastError());
    if (done) {
        showSelection();
        updateProfiles();
        updateTitle();
    }
}

void DialogMain::showSelection()
{
    mDialogProfile->updateProject();
    mDialogData->updateProfile();
}

void DialogMain::openCard()
{
    const QString path = mDialogs.folder(this, tr("Open SD Card"), setting(kLastPath));
    if (path.isEmpty()) {
        return;
    }
    if (!loadRecords(path)) {
        mStatusBar->showNotice(tr("The folder %1 cannot be opened.").arg(path));
        return;
    }
    mStatusBar->showNotice({});
    showLoaded();
    mContext.settings.setString(kLastPath, path.toStdString());
    mContext.settings.writeXmlFile();
    updateTitle();
}

bool DialogMain::loadRecords(const QString& path)
{
    const WaitCursor wait;
    const bool read = mContext.card.readContainer(path);
    if (read) {
        mDialogCard->reloadCardInfo();
    }
    return read;
}

void DialogMain::reloadCard()
{
    const QString path = setting(kLastPath);
    if (!path.isEmpty() && !loadRecords(path)) {
        mStatusBar->showNotice(
            tr("The folder %1 cannot be opened. Is the card in its reader?").arg(path));
    }
}

void DialogMain::slotLoadRecord(const std::list<QString>& files)
{
    load(tr("Loading %1...").arg(LoadSummary::files(files.size())), [&] {
        return mContext.card.loadFiles(files) != 0 ? LoadSummary::files(files.size()) : QString();
    });
}

void DialogMain::slotLoadCycle(unsigned int cycle, int flight)
{
    CardContainer& card = mContext.card;
    load(tr("Loading %1...").arg(LoadSummary::cycle(card, cycle, flight)), [&] {
        return card.loadCycle(cycle, flight) != 0 ? LoadSummary::cycle(card, cycle, flight)
                                                  : QString();
    });
}

/// job: loads and names what is loaded then; empty if that failed.
void DialogMain::load(const QString& text, const std::function<QString()>& job)
{
    const WaitCursor wait;
    mStatusBar->beginWork(text);
    setProgress(0);
    const CardContainer& card = mContext.card;
    const RecordData* before = &card.loadedData();
    mDialogData->releaseRecord();
    const QString name = job();
    mDialogData->updateRecord();
    setProgress(100);
    mStatusBar->endWork();

    // A load that the card refused leaves what was loaded before.
    const bool replaced = &card.loadedData() != before;
    if (!card.hasRecord()) {
        mLoaded = {};
    } else if (replaced && !name.isEmpty()) {
        mLoaded = {LoadSummary::withCounts(name, card), card.name()};
    }
    showLoaded();
    mStatusBar->showNotice(card.lastError());
    updateEnabled();
}

/// Another card may have been opened since; then the views still show the one before.
void DialogMain::showLoaded()
{
    const bool otherCard = !mLoaded.text.isEmpty() && mLoaded.card != mContext.card.name();
    mStatusBar->showLoaded(otherCard ? tr("%1 of card %2").arg(mLoaded.text, mLoaded.card)
                                     : mLoaded.text);
}

void DialogMain::slotCanChanged()
{
    updateEnabled();
}

void DialogMain::slotProfileChanged()
{
    if (mContext.profile.selectedParameters().empty()) {
        // Cleared for all variants: nothing comes back when another one is chosen.
        mContext.project.setProfileData();
    }
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
    profile.loadProfile(mProfileSettings.profileFile());
    const QString variant = mProfileSettings.variant();
    // A variant of another profile would leave little of this one.
    const bool known = profile.variants().empty() || hasVariant(profile, variant);
    profile.setCurrentVariant(known ? variant : QString());
    mContext.project.restoreSelection();
    fillProfiles();
    mDialogProfile->updateList();
    mDialogData->loadProfile();
}

void DialogMain::fillProfiles()
{
    if (mVariantBox == nullptr) {
        return;
    }
    mVariantBox->clear();
    for (const ProfileVariant& variant : mContext.profile.variants()) {
        mVariantBox->addItem(variant.name, variant.name);
    }
    mVariantBox->setEnabled(mVariantBox->count() > 0);
    updateProfiles();
}

void DialogMain::updateProfiles()
{
    if (mVariantBox != nullptr) {
        mVariantBox->selectText(mProfileSettings.variant());
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
    if (mUnitBox != nullptr) {
        mUnitBox->selectData(unit);
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
    showSelection();
    updateProfiles();
    updateTitle();
    updateEnabled();
}

void DialogMain::updateEnabled()
{
    mActions->setUnavailable(eActionExportCsv, mContext.card.hasRecord()
                                                   ? QString()
                                                   : tr("Load a cycle or a flight to export it"));
}

} // namespace VELIX
