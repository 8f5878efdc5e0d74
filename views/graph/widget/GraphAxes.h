#pragma once

#include <QColor>
#include <QRect>
#include <QString>

namespace VELIX {

struct GraphCanvas;

/// Paints the labels of a graph's axes, and on the time axis the times of cursor and mouse.
class GraphAxes
{
public:
    explicit GraphAxes(const GraphCanvas& canvas) : mCanvas(canvas) {}

    void paintTimes() const;
    void paintValues() const;
    /// Paints the times of cursor and mouse; where they overlap only that of the mouse.
    void paintTags() const;

private:
    void paintTag(double time, const QColor& color) const;
    /// Where the time at a line is written below the plot; empty if the line is not visible.
    [[nodiscard]] QRect tagOf(double time) const;
    [[nodiscard]] QRect cursorTag() const;
    [[nodiscard]] QRect mouseTag() const;
    [[nodiscard]] QString textOf(double time) const;
    /// The right end of the room for labels of the time axis.
    [[nodiscard]] int end() const;

    const GraphCanvas& mCanvas;
};

} // namespace VELIX
