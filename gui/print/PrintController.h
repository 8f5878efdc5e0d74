#pragma once

#include "gui/print/PrintPages.h"

#include <QObject>

class QPageLayout;
class QWidget;

namespace VELIX {

class DialogService;
class Printable;
class Property;

/// Prints views and saves them as PDF files, and reports how that went.
class PrintController : public QObject
{
    Q_OBJECT

public:
    /// window: the parent of the dialogs, and this object's owner.
    PrintController(Property& settings, DialogService& dialogs, QWidget* window);

    /// Says why a page cannot be printed now, as a sentence; empty if it can.
    /// \param page null for one of a kind that never can
    static QString unprintableReason(const Printable* page);

    /// Asks for a printer and its settings and prints. Does nothing with an unprintable page.
    void print(const Printable* page, const PrintHeader& header);
    /// Asks for a file and writes it, as a whole or not at all. Does nothing with an unprintable
    /// page.
    void savePdf(const Printable* page, const PrintHeader& header);

signals:
    /// A result or failure in words.
    void signalNotice(const QString& sentence);

private:
    void writePdf(const QString& path, const Printable& view, const PrintHeader& header,
                  const QPageLayout& paper, PrintPages::Range range);
    [[nodiscard]] QString suggestedFile(const Printable& view, const PrintHeader& header) const;

    Property& mSettings;
    DialogService& mDialogs;
    QWidget* mWindow;
};

} // namespace VELIX
