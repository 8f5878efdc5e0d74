#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace VELIX {

/// The page of the preferences for language, font size and profile file.
class PreferencesGeneral : public QWidget
{
    Q_OBJECT

public:
    explicit PreferencesGeneral(QWidget* parent = nullptr);

    /// Selects the language with this code; an empty one selects English.
    void showLanguage(const QString& code);
    /// The code of a language by its name; empty for a name that is not offered.
    QString languageCode(const QString& language) const;
    /// pixels: a size that is not offered leaves the selector empty.
    void showFontSize(int pixels);
    /// chosen: the user's own file, not the installed one.
    void showProfile(const QString& file, bool chosen);
    /// A sentence below the profile file; empty takes it away.
    void showProblem(const QString& sentence);

signals:
    /// The user's choices; the program's own changes are silent.
    void signalLanguage(const QString& language);
    void signalFontSize(int pixels);
    void signalSelectProfile();
    void signalInstalledProfile();

private:
    void createSelectors();
    void createProfileRow();
    void createLayout();

    QComboBox* mLanguage;
    QComboBox* mFontSize;
    QLineEdit* mProfile;
    QPushButton* mSelect;
    QPushButton* mInstalled;
    QLabel* mProblem;
};

} // namespace VELIX
