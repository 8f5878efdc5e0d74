#pragma once

#include "profile/ProfileParameter.h"

#include <QPalette>
#include <QTimer>
#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace VELIX {

class Profile;
class WidgetHint;
struct ProfileInfo;

/// The panel in which the user ticks the parameters that views and exports show.
///
/// A tick is in the profile at once, but the views follow only when it is confirmed; until then
/// the button blinks. Items point into the loaded profile: updateList() after every load.
class DialogProfile : public QWidget
{
    Q_OBJECT

public:
    explicit DialogProfile(Profile& profile, QWidget* parent = nullptr);

    /// Builds the tree again from the loaded profile.
    void updateList();
    void updateProfile(QTreeWidget* tree, ProfileInfo& info);
    /// Labels all items with the units of the current unit system.
    void updateUnits();
    /// Brings the ticks in line with the profile, for example after a project was read.
    void updateProject();
    /// Puts the keyboard on the search field, so that typing finds a parameter.
    void focusSearch();

signals:
    /// The user confirmed or cleared the selection.
    void signalChanged();
    /// No parameter is wanted, of other variants and profiles neither; signalChanged() follows.
    void signalCleared();
    void signalInstallProfile();

private slots:
    void slotItemChanged(QTreeWidgetItem* item, int column);
    void slotTimeout();
    void slotConfirm();
    void slotClear();
    void slotFilter(const QString& text);

private:
    void createTree();
    void selectShown(bool selected);
    void startBlinking();
    void updateCount();
    void showCount();
    QWidget* createPage();
    void addParameter(QTreeWidgetItem* device, ProfileParameter& parameter);
    void forEachItem(const std::function<void(QTreeWidgetItem&, ProfileParameter&)>& function);
    void setHighlighted(bool highlighted);
    void stopBlinking();

    Profile& mProfile;
    QTreeWidget* mTree;
    QLineEdit* mSearch;
    QLabel* mCount;
    QPushButton* mButtonClear;
    QPushButton* mButtonConfirm;
    WidgetHint* mHint;
    QStackedWidget* mPages;
    QTimer mTimerBlink;
    int mSelected = 0;
    int mTotal = 0;
    bool mHighlighted = false;
    bool mUpdating = false; ///< the panel itself changes the ticks
};

} // namespace VELIX
