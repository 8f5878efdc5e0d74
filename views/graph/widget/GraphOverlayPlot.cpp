#include "views/graph/widget/GraphOverlay.h"

#include "views/graph/model/GraphModel.h"
#include "views/graph/widget/GraphTexts.h"

#include <QCoreApplication>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <limits>

namespace VELIX {

namespace {

constexpr int kPadding = 4;  ///< between a text and the edge of its ground
constexpr int kTriangle = 5; ///< half the width of a top marker
constexpr int kGroundAlpha = 205;
constexpr int kNameAlpha = 120;
constexpr int kNameGap = 24; ///< between a trace's name and its readout
constexpr int kMarkedAlpha = 22;
/// Of the plot a box of readouts covers no more than one part in so many, if it has few lines.
constexpr int kBoxPart = 3;
constexpr int kFewLines = 4;

} // namespace

// --- inside the plot

bool GraphOverlay::bandsHoldText() const
{
    return mSplit && !mScene.shown.empty() &&
           mScene.layout.plot().height() / static_cast<int>(mScene.shown.size()) >=
               mMetrics.height();
}

void GraphOverlay::paintBandNames()
{
    if (!bandsHoldText()) {
        return;
    }
    struct Name
    {
        QString text;
        QRect ground;
    };
    std::vector<Name> names;
    for (std::size_t place = 0; place < mScene.shown.size(); ++place) {
        const QRect band = mScene.bandOf(place);
        const QString text = mMetrics.elidedText(mModel.parameter(mScene.shown[place]).name,
                                                 Qt::ElideRight, band.width() / 2);
        names.push_back({text, QRect(band.left(), band.top() + 1, textWidth(text) + 2 * kPadding,
                                     mMetrics.height() - 1)});
        if (names.back().ground.adjusted(0, 0, kNameGap, 0).intersects(cursorNotePlace(place))) {
            return; // the readouts say the names as well; all of them or none, for a calm picture
        }
    }
    QColor back = mLook.back;
    back.setAlpha(kNameAlpha);
    for (std::size_t place = 0; place < names.size(); ++place) {
        const Name& name = names[place];
        mPainter.fillRect(name.ground, back);
        mPainter.setPen(GraphLook::readable(colourOf(mScene.shown[place]), mLook.back));
        mPainter.drawText(name.ground.adjusted(kPadding, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                          name.text);
    }
}

void GraphOverlay::paintMarked()
{
    if (!mPointer.markersOn) {
        return;
    }
    const QRect plot = mScene.layout.plot();
    const double from =
        std::max(xOf(std::min(mModel.marker1(), mModel.marker2())), 1.0 * plot.left());
    const double to =
        std::min(xOf(std::max(mModel.marker1(), mModel.marker2())), plot.right() + 1.0);
    if (to > from) {
        QColor ground = mLook.plotText();
        ground.setAlpha(kMarkedAlpha);
        mPainter.fillRect(QRectF(from, plot.top(), to - from, plot.height()), ground);
    }
}

void GraphOverlay::paintFlags()
{
    if (!mPointer.markersOn) {
        return;
    }
    // The flags point outwards, so that they do not hide each other.
    const bool sorted = mModel.marker1() <= mModel.marker2();
    paintFlag(QStringLiteral("1"), mModel.marker1(), sorted);
    paintFlag(QStringLiteral("2"), mModel.marker2(), !sorted);
}

void GraphOverlay::paintFlag(const QString& text, double time, bool leftOfLine)
{
    const double x = xOf(time);
    if (!inPlot(x)) {
        return;
    }
    const QRect plot = mScene.layout.plot();
    const int width = textWidth(text) + 2 * kPadding;
    const QRect flag(leftOfLine ? qRound(x) - width : qRound(x) + 1,
                     plot.bottom() + 1 - mMetrics.height(), width, mMetrics.height());
    mPainter.fillRect(flag, mLook.plotText());
    mPainter.setPen(mLook.back);
    mPainter.drawText(flag, Qt::AlignCenter, text);
}

void GraphOverlay::paintTopMarkers()
{
    const QRect plot = mScene.layout.plot();
    mPainter.setRenderHint(QPainter::Antialiasing);
    std::vector<QRect> used; // labels of near markers go below each other
    for (const GraphModel::TopMarker& marker : mModel.topMarkers()) {
        const double x = xOf(marker.time);
        if (!inPlot(x)) {
            continue;
        }
        const bool known = marker.number < mModel.count();
        const QColor colour =
            known ? GraphLook::readable(colourOf(marker.number), mLook.back) : mLook.plotText();
        QPainterPath triangle(QPointF(x - kTriangle, plot.top()));
        triangle.lineTo(x + kTriangle, plot.top());
        triangle.lineTo(x, plot.top() + 1.6 * kTriangle);
        triangle.closeSubpath();
        mPainter.fillPath(triangle, colour);
        const QString name = known ? mModel.parameter(marker.number).name : QString();
        const Note note{GraphTexts::timed(name, marker.time), colour};
        QPoint anchor(qRound(x), plot.top() + mMetrics.height() / 2);
        while (anchor.y() < plot.bottom() &&
               std::any_of(used.begin(), used.end(), [&](const QRect& other) {
                   return other.intersects(notePlace(anchor, note, plot));
               })) {
            anchor.ry() += mMetrics.height();
        }
        used.push_back(notePlace(anchor, note, plot));
        paintNote(anchor, note, plot);
    }
    mPainter.setRenderHint(QPainter::Antialiasing, false);
}

void GraphOverlay::paintCursor()
{
    if (!mLook.cursorOn) {
        return;
    }
    std::vector<Note> notes;
    for (const unsigned int trace : mScene.shown) {
        notes.push_back({GraphTexts::readout(mModel, trace, mModel.cursorTime()),
                         GraphLook::readable(colourOf(trace), mLook.back)});
    }
    if (!mPointer.hovering) {
        paintReadouts(mModel.cursorTime(), mScene.layout.plot().center().y(), notes);
    }
}

void GraphOverlay::paintHover()
{
    if (!mPointer.hovering) {
        return;
    }
    const double time = mouseTime();
    const bool named = !bandsHoldText();
    std::vector<Note> notes;
    for (std::size_t place = 0; place < mScene.shown.size(); ++place) {
        const unsigned int trace = mScene.shown[place];
        QString text = GraphTexts::hover(mModel, trace, time);
        if (named) {
            text.prepend(mModel.parameter(trace).name + QStringLiteral("  "));
        }
        notes.push_back({text, GraphLook::readable(colourOf(trace), mLook.back),
                         distanceToMouse(place, time), place});
    }
    const int lines = boxLines(notes);
    if (named && static_cast<int>(notes.size()) > lines) {
        // The nearest traces, in the order in which they stand in the plot; the last line counts
        // the others.
        const auto end = notes.begin() + std::max(0, lines - 1);
        std::nth_element(notes.begin(), end, notes.end(),
                         [](const Note& a, const Note& b) { return a.distance < b.distance; });
        std::sort(notes.begin(), end,
                  [](const Note& a, const Note& b) { return a.place < b.place; });
    }
    paintReadouts(time, mPointer.mouse.y(), notes);
}

double GraphOverlay::distanceToMouse(std::size_t place, double time) const
{
    const unsigned int trace = mScene.shown[place];
    double value = 0.0;
    if (!mModel.getValue(trace, time, value) || !std::isfinite(value)) {
        return std::numeric_limits<double>::infinity();
    }
    const GraphYScale& scale = mModel.scaleOf(trace);
    return std::abs(mPointer.mouse.y() -
                    GraphLayout::yOf(value, mScene.bandOf(place), scale.minimum, scale.maximum));
}

void GraphOverlay::paintReadouts(double time, int y, const std::vector<Note>& notes)
{
    const double x = xOf(time);
    if (!inPlot(x)) {
        return;
    }
    if (!bandsHoldText()) {
        paintBox(QPoint(qRound(x), y), notes);
        return;
    }
    for (std::size_t place = 0; place < notes.size(); ++place) {
        paintNote(noteAnchor(place, time), notes[place], noteArea(place));
    }
}

QRect GraphOverlay::noteArea(std::size_t place) const
{
    QRect band = mScene.bandOf(place).adjusted(0, 1, 0, 0);
    if (mPointer.markersOn && place + 1 == mScene.shown.size() &&
        band.height() >= 3 * mMetrics.height()) {
        band.adjust(0, 0, 0, -mMetrics.height()); // the markers' flags are there
    }
    return band;
}

QPoint GraphOverlay::noteAnchor(std::size_t place, double time) const
{
    return {qRound(xOf(time)), quietHeight(mScene.shown[place], time, noteArea(place))};
}

QRect GraphOverlay::cursorNotePlace(std::size_t place) const
{
    const double time = mModel.cursorTime();
    if (!mLook.cursorOn || mPointer.hovering || !inPlot(xOf(time))) {
        return {};
    }
    const Note note{GraphTexts::readout(mModel, mScene.shown[place], time), {}};
    return notePlace(noteAnchor(place, time), note, noteArea(place));
}

int GraphOverlay::quietHeight(unsigned int trace, double time, const QRect& band) const
{
    double value = 0.0;
    const bool known = mModel.getValue(trace, time, value);
    const bool low = known && mModel.scaleOf(trace).fraction(value) < 0.5;
    return low ? band.top() : band.bottom();
}

void GraphOverlay::paintNote(const QPoint& anchor, const Note& note, const QRect& area)
{
    const QRect place = notePlace(anchor, note, area);
    QColor ground = mLook.back;
    ground.setAlpha(kGroundAlpha);
    mPainter.fillRect(place, ground);
    mPainter.setPen(note.colour);
    // Where there is too little room the value counts more than the name before it.
    mPainter.drawText(place, Qt::AlignCenter,
                      mMetrics.elidedText(note.text, Qt::ElideLeft, place.width()));
}

QRect GraphOverlay::notePlace(const QPoint& anchor, const Note& note, const QRect& area) const
{
    const QSize size(textWidth(note.text) + 2 * kPadding,
                     std::min(mMetrics.height(), area.height()));
    return GraphLayout::placeBeside(anchor, size, area);
}

int GraphOverlay::boxLines(const std::vector<Note>& notes) const
{
    const QSize plot = mScene.layout.plot().size();
    const int line = mMetrics.height();
    const int fitting = std::max(0, (plot.height() - 4 * kPadding) / line);
    int width = 1;
    for (const Note& note : notes) {
        width = std::max(width, textWidth(note.text) + 2 * kPadding);
    }
    const int modest = plot.width() * plot.height() / (kBoxPart * width * line);
    return std::clamp(modest, std::min(kFewLines, fitting), fitting);
}

void GraphOverlay::paintBox(const QPoint& anchor, const std::vector<Note>& notes)
{
    const QRect area = mScene.layout.plot().adjusted(kPadding, kPadding, -kPadding, -kPadding);
    const int line = mMetrics.height();
    const int fitting = boxLines(notes);
    const int count = static_cast<int>(notes.size());
    // The last line counts what does not fit.
    const int shown = count <= fitting ? count : std::max(0, fitting - 1);
    QStringList lines;
    int width = 0;
    for (int i = 0; i < shown; ++i) {
        lines.append(notes[static_cast<std::size_t>(i)].text);
    }
    if (shown < count) {
        lines.append(QCoreApplication::translate("VELIX::GraphOverlay", "+ %n more", nullptr,
                                                 count - shown));
    }
    for (const QString& text : qAsConst(lines)) {
        width = std::max(width, textWidth(text));
    }
    const QSize size(width + 2 * kPadding, static_cast<int>(lines.size()) * line + 2 * kPadding);
    const QRect box = GraphLayout::placeBeside(anchor, size, area);
    QColor ground = mLook.back;
    ground.setAlpha(kGroundAlpha);
    mPainter.fillRect(box, ground);
    paintFrame(box, mLook.separator());
    for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
        mPainter.setPen(i < shown ? notes[static_cast<std::size_t>(i)].colour
                                  : mLook.plotMutedText());
        const QRect place(box.left() + kPadding, box.top() + kPadding + i * line,
                          box.width() - 2 * kPadding, line);
        mPainter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                          mMetrics.elidedText(lines[i], Qt::ElideLeft, place.width()));
    }
}

void GraphOverlay::paintDistance()
{
    if (!mPointer.distance || !mPointer.markersOn) {
        return;
    }
    const QRect plot = mScene.layout.plot();
    const double middle = (xOf(mModel.marker1()) + xOf(mModel.marker2())) / 2.0;
    const QString text = GraphTexts::distance(mModel.markerDistance());
    const int width = textWidth(text) + 4 * kPadding;
    const int left = qRound(std::clamp(middle - width / 2.0, 1.0 * plot.left(),
                                       std::max(1.0 * plot.left(), plot.right() + 1.0 - width)));
    // Between the flags, or above them when they are near.
    const bool between = std::abs(xOf(mModel.marker2()) - xOf(mModel.marker1())) > width;
    const int bottom = plot.bottom() + 1 - (between ? 0 : mMetrics.height());
    const QRect tag(left, bottom - mMetrics.height(), width, mMetrics.height());
    mPainter.fillRect(tag, mLook.plotText());
    mPainter.setPen(mLook.back);
    mPainter.drawText(tag, Qt::AlignCenter, text);
}

} // namespace VELIX
