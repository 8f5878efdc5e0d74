#pragma once

#include <QStackedWidget>

namespace VELIX {

class PageTabBar;
class Printable;
class WidgetHint;

/// The pages of the data window: one in front, chosen by its tab. A sentence covers all of them
/// while there is nothing that they could show.
class DataPages : public QStackedWidget
{
    Q_OBJECT

public:
    explicit DataPages(QWidget* parent = nullptr);

    /// Returns the tabs, which the owner lays out: they share their row with other controls.
    PageTabBar& tabs() const { return *mTabs; }

    /// Appends a page with its tab.
    /// helpTopic: the page of the manual about it
    void addPage(QWidget* page, const char* icon, const QString& label, const char* helpTopic);
    /// Brings a page to the front, as a click on its tab does.
    void showPage(QWidget* page);

    /// Returns the page in front if it can be printed; else null.
    const Printable* printable() const;
    /// Returns the page of the manual about the page in front.
    QString helpTopic() const;

    /// Covers the pages with a sentence.
    void cover(const QString& sentence);
    void uncover();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    PageTabBar* mTabs;
    WidgetHint* mCover;
};

} // namespace VELIX
