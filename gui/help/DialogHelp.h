#pragma once

#include "gui/help/HelpManual.h"

#include <QDialog>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QSplitter;
class QStackedWidget;
class QToolButton;
class QTreeWidget;

namespace VELIX {
class HelpBrowser;
class Property;
} // namespace VELIX

/// The help window: the manual with its contents and a search. It stays open beside the program.
class DialogHelp : public QDialog
{
    Q_OBJECT

public:
    /// In the language of the setting "Locale"; size and text size are kept in the settings.
    explicit DialogHelp(VELIX::Property& settings, QWidget* parent = nullptr);

    /// Opens the window at a topic of the manual; at the first page for an unknown one.
    void showPage(const QString& topic);

protected:
    void hideEvent(QHideEvent* event) override;

private slots:
    void slotSearch(const QString& text);
    void slotResult(int row);
    void slotNextMark();
    void slotPreviousMark();
    void slotPageChanged(const QUrl& address);

private:
    void createContents();
    void createPages();
    QBoxLayout* createBar();
    void createKeys();
    QToolButton* addButton(QBoxLayout* row, const QIcon& icon, const QString& tip,
                           const QKeySequence& key);
    void goTo(const QString& topic, const QString& anchor);
    void stepMark(int step);
    bool stepResult(int step);
    void zoom(int pixels);
    void showCount();
    void rememberSize();

    VELIX::Property& mSettings;
    VELIX::HelpManual mManual;
    std::vector<VELIX::HelpHit> mHits;

    QLineEdit* mSearch = nullptr;
    QLabel* mCount = nullptr;
    QToolButton* mPrevious = nullptr;
    QToolButton* mNext = nullptr;
    QStackedWidget* mLeft = nullptr;
    QTreeWidget* mContents = nullptr;
    QListWidget* mResults = nullptr;
    QLabel* mNothing = nullptr;
    VELIX::HelpBrowser* mBrowser = nullptr;
    QSplitter* mSplitter = nullptr;
};
