#pragma once

#include <QString>

#include <memory>

class QPaintDevice;
class QPainter;
class QSizeF;

namespace VELIX {

/// What is to be printed, broken into pages.
class PrintLayout
{
public:
    virtual ~PrintLayout() = default;
    /// At least 1.
    [[nodiscard]] virtual int pageCount() const = 0;
    /// Paints a page, counted from 0, with the origin at the upper left corner of its room.
    virtual void paintPage(QPainter& painter, int page) const = 0;
};

/// A view that can be put onto paper, which is white whatever the look on screen.
class Printable
{
public:
    virtual ~Printable() = default;
    /// Heading of the pages.
    [[nodiscard]] virtual QString printTitle() const = 0;
    /// Why there is nothing to print now, as a short sentence; empty if there is.
    [[nodiscard]] virtual QString unprintableReason() const = 0;
    /// Whether the paper is to lie on its long side.
    [[nodiscard]] virtual bool printsWide() const { return false; }
    /// Pages for a device, whose resolution decides how many pixels a point has. The layout must
    /// not outlive the view's record.
    /// \param room of one page, in pixels of the device
    [[nodiscard]] virtual std::unique_ptr<PrintLayout> printLayout(QPaintDevice& device,
                                                                   const QSizeF& room) const = 0;
};

} // namespace VELIX
