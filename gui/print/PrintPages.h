#pragma once

#include <QCoreApplication>

class QPagedPaintDevice;

namespace VELIX {

class Printable;
struct PrintHeader;

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

    /// Paints pages in the size, orientation and margins of the device.
    /// \return false if the device cannot be painted on or no page is in the range
    static bool paint(QPagedPaintDevice& device, const Printable& view, const PrintHeader& header,
                      Range range);
    /// Paints all pages.
    static bool paint(QPagedPaintDevice& device, const Printable& view, const PrintHeader& header)
    {
        return paint(device, view, header, Range());
    }
};

} // namespace VELIX
