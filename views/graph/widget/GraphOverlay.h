#pragma once

#include "views/graph/widget/GraphLook.h"
#include "views/graph/widget/GraphPointer.h"
#include "views/graph/widget/GraphScene.h"

#include <QPainter>
#include <QString>
#include <QStringList>

#include <vector>

namespace VELIX {

class GraphModel;

/// Everything in a graph that is not a line: labels of the axes, legend, drag handles, readouts,
/// markers' flags. Painted over the lines, in logical pixels.
class GraphOverlay
{
public:
    GraphOverlay(QPainter& painter, const GraphModel& model, const GraphScene& scene,
                 const GraphLook& look, const GraphPointer& pointer);

    void paint();

private:
    /// A text beside a line in the plot.
    struct Note
    {
        QString text;
        QColor colour;
        double distance = 0.0; ///< pixels from the mouse to the trace
        std::size_t place = 0; ///< of the trace, from top to bottom
    };

    void paintTimeAxis();
    void paintValueAxes();
    void paintBandNames();
    void paintHandles();
    void paintDrop();
    void paintLegend();
    void paintLegendEntry(int row, const QRect& place);
    void paintMarked();
    void paintFlags();
    void paintFlag(const QString& text, double time, bool leftOfLine);
    void paintTopMarkers();
    void paintCursor();
    void paintHover();
    void paintDistance();
    void paintHint(const QString& text);

    /// Readouts of all traces at a time, beside that time's line: in the bands where they are high
    /// enough, else together in a box at a height.
    void paintReadouts(double time, int y, const std::vector<Note>& notes);
    void paintNote(const QPoint& anchor, const Note& note, const QRect& area);
    void paintBox(const QPoint& anchor, const std::vector<Note>& notes);
    /// Lines of a box that leaves most of the plot to be seen.
    [[nodiscard]] int boxLines(const std::vector<Note>& notes) const;
    [[nodiscard]] double distanceToMouse(std::size_t place, double time) const;
    /// The outermost pixels of a rectangle.
    void paintFrame(const QRect& frame, const QColor& colour);
    void paintTimeTag(double time, const QColor& colour);
    /// Where the time at a line is written below the plot; empty if the line is not visible.
    [[nodiscard]] QRect timeTag(double time) const;
    [[nodiscard]] QString timeText(double time) const;
    [[nodiscard]] double mouseTime() const;
    /// The right end of the room for labels of the time axis.
    [[nodiscard]] int axisEnd() const;
    /// A height in a band at which a text does not hide the trace.
    [[nodiscard]] int quietHeight(unsigned int trace, double time, const QRect& band) const;
    /// The part of a band that is free for readouts, and where in it the readout at a time belongs.
    [[nodiscard]] QRect noteArea(std::size_t place) const;
    [[nodiscard]] QPoint noteAnchor(std::size_t place, double time) const;
    /// Where the cursor's readout is in a band; empty if there is none.
    [[nodiscard]] QRect cursorNotePlace(std::size_t place) const;
    [[nodiscard]] QRect notePlace(const QPoint& anchor, const Note& note, const QRect& area) const;
    [[nodiscard]] double xOf(double time) const;
    [[nodiscard]] bool inPlot(double x) const;
    [[nodiscard]] QColor colourOf(unsigned int trace) const;
    [[nodiscard]] int textWidth(const QString& text) const;
    [[nodiscard]] bool bandsHoldText() const;

    QPainter& mPainter;
    const GraphModel& mModel;
    const GraphScene& mScene;
    const GraphLook& mLook;
    const GraphPointer& mPointer;
    QFontMetrics mMetrics;
    QFontMetricsF mWidths; ///< of the same font, not rounded
    bool mSplit;
};

} // namespace VELIX
