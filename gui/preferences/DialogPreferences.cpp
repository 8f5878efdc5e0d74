#include "gui/preferences/DialogPreferences.h"

#include "core/MapSettings.h"
#include "core/Property.h"
#include "gui/dialogs/ApplicationControl.h"
#include "gui/dialogs/DialogService.h"
#include "gui/look/ImageHandler.h"
#include "gui/look/Spacing.h"
#include "gui/preferences/PreferencesGeneral.h"
#include "gui/preferences/PreferencesMap.h"
#include "gui/profile/ProfileInstaller.h"
#include "gui/profile/ProfileSettings.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace VELIX {

namespace {

constexpr const char* kLocale = "Locale";
constexpr const char* kFontSize = "FontSize";
constexpr int kDefaultFontSize = 12;
constexpr int kContentWidth = 540;
constexpr int kListMargin = 24; ///< frame and padding beside the longest title

} // namespace

DialogPreferences::DialogPreferences(const AppContext& context, ProfileSettings& profiles,
                                     DialogService& dialogs, QWidget* parent)
    : QDialog(parent),
      mContext(context),
      mProfiles(profiles),
      mDialogs(dialogs),
      mPageList(new QListWidget(this)),
      mPages(new QStackedWidget(this)),
      mGeneral(new PreferencesGeneral(this)),
      mMap(new PreferencesMap(this))
{
    setWindowTitle(tr("Preferences"));
    createPages();
    createLayout();
    fillDialog();
}

void DialogPreferences::createPages()
{
    mPageList->setObjectName(QStringLiteral("pageList"));
    mPageList->setAccessibleName(tr("Pages"));
    connect(mPageList, &QListWidget::currentItemChanged, this, &DialogPreferences::slotChangePage);
    addPage(tr("General"), "preferences", mGeneral);
    addPage(tr("Map"), "map", mMap);
    mPageList->setCurrentRow(0);

    connect(mGeneral, &PreferencesGeneral::signalLanguage, this, &DialogPreferences::slotLanguage);
    connect(mGeneral, &PreferencesGeneral::signalFontSize, this, &DialogPreferences::slotFont);
    connect(mGeneral, &PreferencesGeneral::signalSelectProfile, this,
            &DialogPreferences::slotProfileSelect);
    connect(mGeneral, &PreferencesGeneral::signalInstalledProfile, this,
            &DialogPreferences::slotProfileInstalled);
    connect(mMap, &PreferencesMap::signalChanged, this, &DialogPreferences::slotMap);
}

void DialogPreferences::addPage(const QString& title, const char* icon, QWidget* page)
{
    new QListWidgetItem(ImageHandler::instance().icon(QLatin1String(icon)), title, mPageList);
    mPages->addWidget(page);
}

void DialogPreferences::createLayout()
{
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* close = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    close->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing::kGroup);
    row->addWidget(mPageList);
    row->addWidget(mPages, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(Spacing::kGroup);
    layout->addStrut(kContentWidth); // a minimum of the window would not grow with the font
    layout->addLayout(row, 1);
    layout->addWidget(buttons);
}

void DialogPreferences::slotChangePage(QListWidgetItem* current, QListWidgetItem* previous)
{
    mPages->setCurrentIndex(mPageList->row(current != nullptr ? current : previous));
}

void DialogPreferences::showEvent(QShowEvent* event)
{
    fillDialog();
    fitToFont();
    QDialog::showEvent(event);
}

void DialogPreferences::fitToFont()
{
    mPageList->setFixedWidth(mPageList->sizeHintForColumn(0) + kListMargin);
}

void DialogPreferences::fillDialog()
{
    const Property& settings = mContext.settings;
    mGeneral->showLanguage(QString::fromStdString(settings.getString(kLocale, {})));
    mGeneral->showFontSize(settings.getInt(kFontSize, kDefaultFontSize));
    mGeneral->showProfile(mProfiles.profileFile(),
                          mProfiles.profileFile() != mProfiles.installedFile());
    mGeneral->showProblem({});
    mMap->showSettings(MapSettings::read(settings));
}

void DialogPreferences::slotLanguage(const QString& language)
{
    mContext.settings.setString(kLocale, mGeneral->languageCode(language).toStdString());
    mContext.settings.writeXmlFile();
    emit signalLanguageChanged();
    if (mDialogs.choose(this, tr("VELIX Info"), tr("Please restart VELIX to load new language !"),
                        tr("Restart now"),
                        tr("Restart later: changes will not applied until next restart"))) {
        mContext.control.restart();
    }
}

void DialogPreferences::slotFont(int size)
{
    mContext.settings.setInt(kFontSize, size);
    mContext.settings.writeXmlFile();
    mContext.control.loadStyleFile(mContext.styleInForce());
    fitToFont();
}

void DialogPreferences::slotProfileSelect()
{
    const QString file =
        mDialogs.openFile(this, tr("Select Profile File"), QStringLiteral("../profiles"),
                          tr("VELIX Profile (*.xml);;All files (*.*)"));
    if (file.isEmpty()) {
        return;
    }
    if (!ProfileInstaller::isProfile(file)) {
        mGeneral->showProblem(tr("%1 is not a VELIX profile.").arg(QDir::toNativeSeparators(file)));
        return;
    }
    slotProfilePath(QDir::current().relativeFilePath(file));
    fillDialog();
}

void DialogPreferences::slotProfilePath(const QString& path)
{
    mProfiles.chooseFile(path);
    mContext.settings.writeXmlFile();
    emit signalProfileFileChanged();
}

void DialogPreferences::slotProfileInstalled()
{
    mProfiles.forgetChosenFile();
    mContext.settings.writeXmlFile();
    emit signalProfileFileChanged();
    fillDialog();
}

void DialogPreferences::slotMap()
{
    mMap->values().store(mContext.settings);
    mContext.settings.writeXmlFile();
}

} // namespace VELIX
