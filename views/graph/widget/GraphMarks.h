#pragma once

class QString;

namespace VELIX {

struct GraphCanvas;

/// Paints the two markers of a graph beyond their lines: the stretch between them, their flags and
/// their distance. Without markers it paints nothing.
class GraphMarks
{
public:
    explicit GraphMarks(const GraphCanvas& canvas) : mCanvas(canvas) {}

    void paintStretch() const;
    void paintFlags() const;
    void paintDistance() const;

private:
    void paintFlag(const QString& text, double time, bool leftOfLine) const;

    const GraphCanvas& mCanvas;
};

} // namespace VELIX
