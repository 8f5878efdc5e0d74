#pragma once

#include "gui/project/AppContext.h"

#include <QDialog>

class QListWidget;
class QListWidgetItem;
class QStackedWidget;

namespace VELIX {

class DialogService;
class PreferencesGeneral;
class PreferencesMap;
class ProfileSettings;

/// The preferences: pages of settings that are stored, and where possible in force, at once.
class DialogPreferences : public QDialog
{
    Q_OBJECT

public:
    DialogPreferences(const AppContext& context, ProfileSettings& profiles, DialogService& dialogs,
                      QWidget* parent = nullptr);

    /// Shows what the settings hold.
    void fillDialog();

signals:
    /// Another profile file is to be used.
    void signalProfileFileChanged();
    /// Another language is stored; it holds from the next start on.
    void signalLanguageChanged();

public slots:
    /// language: the name of an entry of the selector.
    void slotLanguage(const QString& language);
    /// size: pixels.
    void slotFont(int size);
    void slotProfileSelect();
    /// path: relative to the folder that the program runs in, or absolute.
    void slotProfilePath(const QString& path);

protected:
    void showEvent(QShowEvent* event) override;

private slots:
    void slotChangePage(QListWidgetItem* current, QListWidgetItem* previous);
    void slotProfileInstalled();
    void slotMap();

private:
    void createPages();
    void addPage(const QString& title, const char* icon, QWidget* page);
    void createLayout();
    void fitToFont();

    AppContext mContext;
    ProfileSettings& mProfiles;
    DialogService& mDialogs;
    QListWidget* mPageList;
    QStackedWidget* mPages;
    PreferencesGeneral* mGeneral;
    PreferencesMap* mMap;
};

} // namespace VELIX
