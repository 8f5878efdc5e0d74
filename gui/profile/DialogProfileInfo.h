#pragma once

#include <QDialog>

class QLabel;

namespace VELIX {

class DialogService;
class Profile;
class ProfileSettings;

/// Describes the loaded profile and installs a new one.
class DialogProfileInfo : public QDialog
{
    Q_OBJECT

public:
    DialogProfileInfo(Profile& profile, ProfileSettings& settings, DialogService& dialogs,
                      QWidget* parent = nullptr);

    void fillProfileInfo();
    /// Asks for a profile file and makes it the installed one.
    void installProfile();

signals:
    /// Another profile is installed. The receiver loads it, since it knows who still refers to
    /// the parameters of the old one.
    void signalProfileChanged();

protected:
    void showEvent(QShowEvent* event) override;

private slots:
    void slotLink(const QString& link);
    void slotClose();

private:
    Profile& mProfile;
    ProfileSettings& mSettings;
    DialogService& mDialogs;
    QLabel* mInfo;
};

} // namespace VELIX
