#pragma once

#include "gui/print/PrintPages.h"

#include <QObject>

class QPageLayout;
class QWidget;

namespace VELIX {

class DialogService;
class Printable;
class Property;

/// Prints views and saves them as PDF files, and tells how that went.
class PrintController : public QObject
{
    Q_OBJECT

public:
    /// window: the parent of the dialogs, and this object's owner.
    PrintController(Property& settings, DialogService& dialogs, QWidget* window);

    /// Asks for a printer and its settings first.
    void print(const Printable& view, const PrintHeader& header);
    /// Asks for a file first, which is then written as a whole or not at all.
    void savePdf(const Printable& view, const PrintHeader& header);

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
