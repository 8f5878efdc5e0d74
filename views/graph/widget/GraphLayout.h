#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace VELIX {

/// What the positions of the graph's parts depend on. Lengths are logical pixels.
struct GraphLayoutInput
{
    QSize size;
    int lineHeight = 14; ///< of the font of all texts
    int axisWidth = 40;  ///< the widest label of a value axis
    int nameWidth = 80;  ///< the widest name of a trace
    int valuesWidth = 0; ///< the widest values with their unit, in the legend
    int traces = 0;      ///< traces shown; each has a drag handle
    int legendRows = 0;  ///< traces listed in the legend, hidden ones included
    bool legend = true;  ///< wanted; it gives way where the plot would be too small
    bool split = false;  ///< every trace in a band of its own
};

/// Where everything in the graph is: the plot with its bands, and around it the axes, the drag
/// handles and the legend.
///
/// Coordinates are logical pixels of the widget, y downwards. Traces are counted from 0 in the
/// order in which they are shown, top to bottom; -1 is none. In a widget too small for any plot
/// all rectangles are empty and nothing is found anywhere.
class GraphLayout
{
public:
    enum class Legend {
        None,
        Names,            ///< one line for each trace: its name
        NamesAndValues,   ///< one line: name and values
        NamesAboveValues, ///< two lines
    };

    GraphLayout() = default;
    explicit GraphLayout(const GraphLayoutInput& input);

    [[nodiscard]] bool empty() const { return mPlot.isEmpty(); }
    [[nodiscard]] const QRect& plot() const { return mPlot; }
    /// Room for the labels of the value axes, left of the plot.
    [[nodiscard]] const QRect& valueAxis() const { return mValueAxis; }
    /// Room for the labels of the time axis, below the plot.
    [[nodiscard]] const QRect& timeAxis() const { return mTimeAxis; }

    /// The band of a trace; in the display with one scale the whole plot.
    [[nodiscard]] QRect band(int trace) const;
    /// The trace whose band a height is in; above and below the plot the first and the last.
    /// -1 in the display with one scale.
    [[nodiscard]] int bandAt(int y) const;
    [[nodiscard]] int bandCount() const { return mSplit ? mTraces : 1; }

    [[nodiscard]] QRect handle(int trace) const;
    [[nodiscard]] int handleAt(const QPoint& point) const;
    /// Where a trace would go if it was dropped at a height.
    [[nodiscard]] int dropAt(int y) const;

    [[nodiscard]] Legend legendKind() const { return mLegendKind; }
    [[nodiscard]] const QRect& legend() const { return mLegend; }
    /// The line above the entries that says what the values are; empty without values.
    [[nodiscard]] QRect legendHeader() const;
    /// Width of the values beside the names.
    [[nodiscard]] int legendValuesWidth() const { return mValuesWidth; }
    [[nodiscard]] QRect legendEntry(int row) const;
    [[nodiscard]] int legendEntryAt(const QPoint& point) const;
    /// Entries that fit; the others are only counted.
    [[nodiscard]] int legendShown() const { return mLegendShown; }

    /// The time at the left edge of a pixel column, for a plot that shows start..stop (seconds).
    [[nodiscard]] double timeAt(double x, double start, double stop) const;
    /// Its inverse, exact to parts of a pixel.
    [[nodiscard]] double xOf(double time, double start, double stop) const;
    /// The value at a height in a band that shows low..high from bottom to top.
    [[nodiscard]] static double valueAt(double y, const QRect& band, double low, double high);
    [[nodiscard]] static double yOf(double value, const QRect& band, double low, double high);

    /// A box of a size beside an anchor and wholly inside an area: to the right of the anchor,
    /// else to its left, else where it fits. Larger than the area, it is cut to it.
    [[nodiscard]] static QRect boxBeside(const QPoint& anchor, const QSize& size,
                                         const QRect& area);

private:
    void chooseLegend(const GraphLayoutInput& input);
    void layOutLegend(const GraphLayoutInput& input);
    QRect slot(int trace) const;

    QRect mPlot;
    QRect mValueAxis;
    QRect mTimeAxis;
    QRect mHandles;
    QRect mLegend;
    Legend mLegendKind = Legend::None;
    int mLegendWidth = 0;
    int mValuesWidth = 0;
    int mLegendRowHeight = 0;
    int mLegendShown = 0;
    int mLineHeight = 0;
    int mTraces = 0;
    bool mSplit = false;
};

} // namespace VELIX
