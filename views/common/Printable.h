#pragma once

#include <QString>

#include <memory>

class QPaintDevice;
class QPainter;
class QSizeF;

namespace VELIX {

/// Something to be printed, broken into pages.
class PrintLayout
{
public:
    virtual ~PrintLayout() = default;
    /// Returns the number of pages, at least 1.
    [[nodiscard]] virtual int pageCount() const = 0;
    /// Paints a page, counted from 0, with the origin at the upper left corner of its area.
    virtual void paintPage(QPainter& painter, int page) const = 0;
};

/// A view that can be printed. Paper is white whatever the look on screen.
class Printable
{
public:
    virtual ~Printable() = default;
    /// Returns the heading of the pages.
    [[nodiscard]] virtual QString printTitle() const = 0;
    /// Returns why nothing can be printed now, as a short sentence; empty if something can.
    [[nodiscard]] virtual QString unprintableReason() const = 0;
    /// Whether the pages are landscape.
    [[nodiscard]] virtual bool printsWide() const { return false; }
    /// Returns the pages for a device, whose resolution decides how many pixels a point has. The
    /// layout must not outlive the view's record.
    /// \param room the printable area of one page, in pixels of the device
    [[nodiscard]] virtual std::unique_ptr<PrintLayout> printLayout(QPaintDevice& device,
                                                                   const QSizeF& room) const = 0;
};

} // namespace VELIX
