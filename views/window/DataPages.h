#pragma once

#include <QStackedWidget>

namespace VELIX {

class PageTabBar;
class Printable;
class WidgetHint;

/// The pages of the data window: one in front, chosen by its tab, and all of them covered while
/// there is nothing that they could show.
class DataPages : public QStackedWidget
{
    Q_OBJECT

public:
    explicit DataPages(QWidget* parent = nullptr);

    /// The tabs, to be laid out by the owner: they share their row with other controls.
    PageTabBar& tabs() const { return *mTabs; }

    /// helpTopic: the page of the manual on it.
    void addPage(QWidget* page, const char* icon, const QString& label, const char* helpTopic);
    /// Brings a page to the front, as its tab would.
    void showPage(QWidget* page);

    /// The page in front, if it can be put onto paper; else null.
    const Printable* printable() const;
    /// The page of the manual on the page in front.
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
