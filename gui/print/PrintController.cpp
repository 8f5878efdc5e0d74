#include "gui/print/PrintController.h"

#include "core/Property.h"
#include "core/Revision.h"
#include "export/OutputFile.h"
#include "gui/dialogs/DialogService.h"
#include "gui/print/PrintHeader.h"
#include "views/common/Printable.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPdfWriter>
#include <QPrinter>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QWidget>

namespace VELIX {

namespace {

constexpr const char* kFolderKey = "PdfDir";
constexpr double kMargin = 15.0; // mm
constexpr int kPdfResolution = 1200;

/// The busy cursor: a list of a hundred thousand events takes seconds.
struct WaitCursor
{
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

QPageLayout defaultPaper(const Printable& view)
{
    return {QPageSize(QPageSize::A4),
            view.printsWide() ? QPageLayout::Landscape : QPageLayout::Portrait,
            QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Millimeter};
}

/// Fit to be the name of a file.
QString documentName(const Printable& view, const PrintHeader& header)
{
    QString name = QStringLiteral("%1 %2").arg(header.card, view.printTitle()).trimmed();
    return name.replace(QRegularExpression(QStringLiteral("[/\\\\:*?\"<>|]")), QStringLiteral("-"));
}

} // namespace

PrintController::PrintController(Property& settings, DialogService& dialogs, QWidget* window)
    : QObject(window), mSettings(settings), mDialogs(dialogs), mWindow(window)
{}

QString PrintController::unprintableReason(const Printable* page)
{
    return page == nullptr ? tr("This page cannot be printed. The graph, the event lists and the "
                                "tow statistic can.")
                           : page->unprintableReason();
}

void PrintController::print(const Printable* page, const PrintHeader& header)
{
    if (!unprintableReason(page).isEmpty()) {
        return;
    }
    const Printable& view = *page;
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(defaultPaper(view));
    printer.setDocName(documentName(view, header)); // the dialog suggests a file of that name
    printer.setCreator(QString::fromStdString(Revision::getRevisionString()));
    if (!mDialogs.choosePrinter(mWindow, printer, tr("Print %1").arg(view.printTitle()))) {
        return;
    }
    const PrintPages::Range range{printer.fromPage(), printer.toPage()};
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        // The toolkit would write straight into the file, and leave half of it after a failure.
        writePdf(printer.outputFileName(), view, header, printer.pageLayout(), range);
        return;
    }
    bool sent = false;
    {
        const WaitCursor wait;
        sent = PrintPages::paint(printer, view, header, range);
    }
    emit signalNotice(sent ? tr("Sent to the printer %1.").arg(printer.printerName())
                           : tr("The printer %1 does not answer.").arg(printer.printerName()));
}

void PrintController::savePdf(const Printable* page, const PrintHeader& header)
{
    if (!unprintableReason(page).isEmpty()) {
        return;
    }
    const Printable& view = *page;
    const QString path = mDialogs.saveFile(mWindow, tr("Save as PDF"), suggestedFile(view, header),
                                           tr("PDF files (*.pdf)"), QStringLiteral("pdf"));
    if (path.isEmpty()) {
        return;
    }
    mSettings.setString(kFolderKey, QFileInfo(path).absolutePath().toStdString());
    mSettings.writeXmlFile();
    writePdf(path, view, header, defaultPaper(view), {});
}

void PrintController::writePdf(const QString& path, const Printable& view,
                               const PrintHeader& header, const QPageLayout& paper,
                               PrintPages::Range range)
{
    const WaitCursor wait;
    const Outcome outcome = writeOutputFile(path, [&](QIODevice& file) {
        QPdfWriter writer(&file);
        writer.setResolution(kPdfResolution);
        writer.setPageLayout(paper);
        writer.setTitle(view.printTitle());
        writer.setCreator(QString::fromStdString(Revision::getRevisionString()));
        return PrintPages::paint(writer, view, header, range);
    });
    const QString native = QDir::toNativeSeparators(path);
    emit signalNotice(outcome.ok
                          ? tr("Saved as %1.").arg(native)
                          : tr("The file %1 could not be written: %2").arg(native, outcome.reason));
}

QString PrintController::suggestedFile(const Printable& view, const PrintHeader& header) const
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder =
        QString::fromStdString(mSettings.getString(kFolderKey, documents.toStdString()));
    return QDir(folder).filePath(documentName(view, header) + QStringLiteral(".pdf"));
}

} // namespace VELIX
