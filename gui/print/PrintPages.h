#pragma once

#include <QCoreApplication>
#include <QString>

class QPagedPaintDevice;

namespace VELIX {

class Printable;

/// What stands above every printed page, beside the title of the view.
struct PrintHeader
{
    QString card;   ///< name of the card
    QString record; ///< what of it is loaded, as "Cycle 3, flight 2"
    QString date;   ///< of the record; empty if unknown
};

/// Puts a view onto the pages of a printer or PDF file, each with a header and a footer.
class PrintPages
{
    Q_DECLARE_TR_FUNCTIONS(VELIX::PrintPages)

public:
    struct Range
    {
        int first = 0; ///< counted from 1; 0: from the first page
        int last = 0;  ///< 0: to the last page
    };

    /// Page size, orientation and margins are the device's.
    /// \return the number of pages painted, 0 if the device cannot be painted on
    static int paint(QPagedPaintDevice& device, const Printable& view, const PrintHeader& header,
                     Range range);
    /// All pages.
    static int paint(QPagedPaintDevice& device, const Printable& view, const PrintHeader& header)
    {
        return paint(device, view, header, Range());
    }
};

} // namespace VELIX
