#include "views/graph/widget/GraphLayout.h"

#include <algorithm>

namespace VELIX {

namespace {

constexpr int kMargin = 8;
constexpr int kGap = 4;
constexpr int kHandleWidth = 10;
constexpr int kHandleHeight = 26;
constexpr int kSwatch = 20; ///< colour sample and its gap, left of a name in the legend
/// Below these the plot is worth more than the legend, and the axes more than nothing.
constexpr int kMinimumLegendPlot = 220;
constexpr int kMinimumPlot = 24;

} // namespace

GraphLayout::GraphLayout(const GraphLayoutInput& input)
    : mLineHeight(std::max(input.lineHeight, 1)),
      mTraces(std::max(input.traces, 0)),
      mSplit(input.split)
{
    const int handles = kMargin / 2 + kHandleWidth + kGap;
    const int left = handles + input.axisWidth + kGap;
    const int bottom = mLineHeight + 2 * kGap;
    const int height = input.size.height() - kMargin - bottom;
    if (height < kMinimumPlot || input.size.width() - left - kMargin < kMinimumPlot) {
        mTraces = 0;
        return;
    }
    mPlot = QRect(left, kMargin, input.size.width() - left - kMargin, height);
    chooseLegend(input);
    mPlot.setWidth(mPlot.width() - mLegendWidth);
    mHandles = QRect(kMargin / 2, mPlot.top(), kHandleWidth, mPlot.height());
    mValueAxis = QRect(handles, mPlot.top(), input.axisWidth, mPlot.height());
    mTimeAxis = QRect(mPlot.left(), mPlot.bottom() + 1 + kGap, mPlot.width(), mLineHeight);
    layOutLegend(input);
}

void GraphLayout::chooseLegend(const GraphLayoutInput& input)
{
    if (!input.legend || input.legendRows <= 0) {
        return;
    }
    const int width = input.size.width();
    mValuesWidth = input.valuesWidth;
    const int rows = input.legendRows;
    const int above = kSwatch + std::max(input.nameWidth, input.valuesWidth);
    const int beside = kSwatch + input.nameWidth + kMargin + input.valuesWidth;
    const int lines = mPlot.height() / mLineHeight;
    int content = 0;
    if (input.valuesWidth > 0 && above <= width / 3 && 2 * rows + 1 <= lines) {
        mLegendKind = Legend::NamesAboveValues;
        content = above;
    } else if (input.valuesWidth > 0 && beside <= width / 3 && rows + 1 <= lines) {
        mLegendKind = Legend::NamesAndValues;
        content = beside;
    } else {
        mLegendKind = Legend::Names;
        content = std::min(kSwatch + input.nameWidth, width / 4);
    }
    mLegendWidth = content + kMargin;
    if (mPlot.width() - mLegendWidth < kMinimumLegendPlot) {
        mLegendKind = Legend::None;
        mLegendWidth = 0;
    }
}

void GraphLayout::layOutLegend(const GraphLayoutInput& input)
{
    if (mLegendKind == Legend::None) {
        return;
    }
    mLegend =
        QRect(mPlot.right() + 1 + kMargin, mPlot.top(), mLegendWidth - kMargin, mPlot.height());
    const bool twoLines = mLegendKind == Legend::NamesAboveValues;
    const int header = legendHeader().height();
    const int least = (twoLines ? 2 : 1) * mLineHeight;
    const int room = mLegend.height() - header;
    // Where there is room the entries are a little apart.
    mLegendRowHeight = std::clamp(room / input.legendRows, least, least + kGap);
    mLegendShown = std::min(input.legendRows, room / mLegendRowHeight);
    if (mLegendShown < input.legendRows && mLegendShown > 0) {
        --mLegendShown; // the last line counts the others
    }
}

QRect GraphLayout::slot(int trace) const
{
    if (trace < 0 || trace >= mTraces) {
        return {};
    }
    const int top = mPlot.top() + mPlot.height() * trace / mTraces;
    const int end = mPlot.top() + mPlot.height() * (trace + 1) / mTraces;
    return {mPlot.left(), top, mPlot.width(), end - top};
}

QRect GraphLayout::band(int trace) const
{
    return mSplit ? slot(trace) : mPlot;
}

int GraphLayout::bandAt(int y) const
{
    return mSplit ? dropAt(y) : -1;
}

QRect GraphLayout::handle(int trace) const
{
    const QRect area = slot(trace);
    if (area.isEmpty()) {
        return {};
    }
    const int height = std::clamp(area.height() - 2, 1, kHandleHeight);
    return {mHandles.left(), area.top() + (area.height() - height) / 2, mHandles.width(), height};
}

int GraphLayout::handleAt(const QPoint& point) const
{
    if (!mHandles.contains(point)) {
        return -1;
    }
    const int trace = dropAt(point.y());
    return handle(trace).contains(point) ? trace : -1;
}

int GraphLayout::dropAt(int y) const
{
    if (mTraces == 0) {
        return -1;
    }
    int trace =
        std::clamp((y - mPlot.top()) * mTraces / std::max(mPlot.height(), 1), 0, mTraces - 1);
    while (trace + 1 < mTraces && y > slot(trace).bottom()) {
        ++trace;
    }
    return trace;
}

QRect GraphLayout::legendHeader() const
{
    if (mLegendKind != Legend::NamesAndValues && mLegendKind != Legend::NamesAboveValues) {
        return {};
    }
    return {mLegend.left(), mLegend.top(), mLegend.width(), mLineHeight};
}

QRect GraphLayout::legendEntry(int row) const
{
    // One more than the entries shown: the line that counts the others.
    if (row < 0 || row > mLegendShown || mLegendKind == Legend::None) {
        return {};
    }
    const int top = mLegend.top() + legendHeader().height() + row * mLegendRowHeight;
    return {mLegend.left(), top, mLegend.width(), mLegendRowHeight};
}

int GraphLayout::legendEntryAt(const QPoint& point) const
{
    if (mLegendKind == Legend::None || !mLegend.contains(point)) {
        return -1;
    }
    const int y = point.y() - mLegend.top() - legendHeader().height();
    const int row = y < 0 ? -1 : y / mLegendRowHeight;
    return row < mLegendShown ? row : -1;
}

double GraphLayout::timeAt(double x, double start, double stop) const
{
    return empty() ? start : start + (x - mPlot.left()) * (stop - start) / mPlot.width();
}

double GraphLayout::xOf(double time, double start, double stop) const
{
    const double width = stop - start;
    return width == 0.0 ? mPlot.left() : mPlot.left() + (time - start) * mPlot.width() / width;
}

double GraphLayout::valueAt(double y, const QRect& band, double low, double high)
{
    const int height = std::max(band.height(), 1);
    return low + (band.top() + height - y) * (high - low) / height;
}

double GraphLayout::yOf(double value, const QRect& band, double low, double high)
{
    const double span = high - low;
    const double part = span == 0.0 ? 0.5 : (value - low) / span;
    return band.top() + band.height() * (1.0 - part);
}

QRect GraphLayout::boxBeside(const QPoint& anchor, const QSize& size, const QRect& area)
{
    const QSize fitted = size.boundedTo(area.size());
    int left = anchor.x() + kMargin;
    if (left + fitted.width() > area.left() + area.width()) {
        left = anchor.x() - kMargin - fitted.width();
    }
    left = std::clamp(left, area.left(), area.left() + area.width() - fitted.width());
    const int top = std::clamp(anchor.y() - fitted.height() / 2, area.top(),
                               area.top() + area.height() - fitted.height());
    return {QPoint(left, top), fitted};
}

} // namespace VELIX
