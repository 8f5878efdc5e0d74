#pragma once

#include <QColor>
#include <QPoint>
#include <QRect>
#include <QString>

#include <cstddef>
#include <vector>

namespace VELIX {

struct GraphCanvas;

/// Paints the texts beside lines in the plot of a graph: names of traces, their values at the
/// cursor and at the mouse, top markers.
class GraphReadouts
{
public:
    explicit GraphReadouts(const GraphCanvas& canvas) : mCanvas(canvas) {}

    void paintBandNames() const;
    void paintTopMarkers() const;
    void paintCursor() const;
    void paintHover() const;

private:
    /// A text beside a line in the plot.
    struct Note
    {
        QString text;
        QColor color;
        double distance = 0.0;    ///< pixels from the mouse to the trace
        std::size_t position = 0; ///< of the trace, from top to bottom
    };

    [[nodiscard]] Note hoverNote(std::size_t position, double time, bool named) const;
    [[nodiscard]] double distanceToMouse(std::size_t position, double time) const;
    void paintTopMarker(double x, const Note& note, std::vector<QRect>& used) const;

    /// Paints the values of all traces at a time beside that time's line: in the bands where they
    /// are high enough, else together in a box at a height.
    void paintAt(double time, int y, const std::vector<Note>& notes) const;
    void paintNote(const QPoint& anchor, const Note& note, const QRect& area) const;
    [[nodiscard]] QRect areaOf(const QPoint& anchor, const Note& note, const QRect& area) const;
    void paintBox(const QPoint& anchor, const std::vector<Note>& notes) const;
    /// Lines of a box that leaves most of the plot to be seen.
    [[nodiscard]] int boxLines(const std::vector<Note>& notes) const;
    /// The part of a band that is free for values, and where in it those at a time belong: at a
    /// height at which they do not hide the trace.
    [[nodiscard]] QRect freeArea(std::size_t position) const;
    [[nodiscard]] QPoint anchorAt(std::size_t position, double time) const;
    /// Where the cursor's value is in a band; empty if there is none.
    [[nodiscard]] QRect cursorArea(std::size_t position) const;

    const GraphCanvas& mCanvas;
};

} // namespace VELIX
