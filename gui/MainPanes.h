#pragma once

#include <QSplitter>

namespace VELIX {

class DialogCard;
class DialogData;
class DialogProfile;
class DialogService;
struct AppContext;

/// The panes of the main window: card browser and parameter list on the left, the data beside them.
class MainPanes : public QSplitter
{
    Q_OBJECT

public:
    MainPanes(AppContext& context, DialogService& dialogs, QWidget* parent = nullptr);

    DialogCard* card() const { return mCard; }
    DialogProfile* profile() const { return mProfile; }
    DialogData* data() const { return mData; }

    /// Leaves most of the width to the data.
    void fitLeftPane();
    /// Shows another profile: its parameters, and what they have in the views.
    void showProfile();
    /// Shows which parameters are selected.
    void showSelection();
    /// Shows names and values in another unit system.
    void showUnits();
    /// The topic of the manual on the pane with the keyboard's focus.
    QString helpTopic() const;

private:
    QWidget* createLeftPane();

    DialogCard* mCard;
    DialogProfile* mProfile;
    DialogData* mData;
};

} // namespace VELIX
