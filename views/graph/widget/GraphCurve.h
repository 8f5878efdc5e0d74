#pragma once

#include "views/graph/model/GraphTrace.h"
#include "views/graph/model/GraphYScale.h"

#include <QRectF>

#include <cstddef>
#include <deque>
#include <vector>

namespace VELIX {

/// A point of a line in pixels of the frame buffer, y downwards.
struct GraphVertex
{
    float x = 0.0F;
    float y = 0.0F;
};

/// The frames of one trace as line strips in pixels, ready to be drawn.
class GraphCurve
{
public:
    /// Where a trace is drawn: the area (pixels of the frame buffer) shows the times from start to
    /// stop (seconds) and the values of the scale.
    struct Target
    {
        QRectF area;
        double start = 0.0;
        double stop = 1.0;
        GraphYScale scale;
    };

    /// Replaces the strips. Lines that leave the area are cut a little outside of it, so that
    /// coordinates stay small enough for single precision however far the range is zoomed in.
    void build(const std::deque<GraphTrace::FrameType>& frames, const Target& target);

    [[nodiscard]] const std::vector<GraphVertex>& vertices() const { return mVertices; }
    /// First vertex of each strip, and the number of its vertices.
    [[nodiscard]] const std::vector<int>& starts() const { return mStarts; }
    [[nodiscard]] const std::vector<int>& sizes() const { return mSizes; }

private:
    struct Point
    {
        double x = 0.0;
        double y = 0.0;
    };

    /// What was drawn of the latest column of more than two samples.
    struct Column
    {
        double top = 0.0;
        double bottom = 0.0;
        bool valid = false;
    };

    void addFrame(const GraphTrace::FrameType& frame, const Target& target);
    void addColumn(double x, double first, double second, double last);
    void lineTo(const Point& point);
    void vertical(double x, double from, double to);
    void startStrip();
    void endStrips();
    void push(const Point& point);

    std::vector<GraphVertex> mVertices;
    std::vector<int> mStarts;
    std::vector<int> mSizes;
    Point mLast;             ///< the sample that the next one is connected to
    bool mConnected = false; ///< false: to none
    bool mPenThere = false;  ///< the last vertex is that sample
    Column mColumn;
    double mLeft = 0.0;
    double mRight = 0.0;
    double mTop = 0.0;
    double mBottom = 0.0;
};

} // namespace VELIX
