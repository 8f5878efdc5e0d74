#include "views/graph/widget/GraphReadouts.h"

#include "views/graph/model/GraphModel.h"
#include "views/graph/widget/GraphCanvas.h"
#include "views/graph/widget/GraphTexts.h"

#include <QCoreApplication>
#include <QPainterPath>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>

namespace VELIX {

namespace {

constexpr int kPadding = GraphCanvas::kPadding;
constexpr int kTriangle = 5; ///< half the width of a top marker
constexpr int kBackAlpha = 205;
constexpr int kNameAlpha = 120;
constexpr int kNameGap = 24; ///< between a trace's name and its readout
/// Of the plot a box of readouts covers no more than one part in so many, if it has few lines.
constexpr int kBoxPart = 3;
constexpr int kFewLines = 4;

QColor veiled(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

} // namespace

// --- names

void GraphReadouts::paintBandNames() const
{
    if (!mCanvas.bandsHoldText()) {
        return;
    }
    const GraphScene& scene = mCanvas.scene;
    std::vector<std::pair<QString, QRect>> names;
    for (std::size_t i = 0; i < scene.shown.size(); ++i) {
        const QRect band = scene.bandOf(i);
        const QString text = mCanvas.metrics.elidedText(
            mCanvas.model.parameter(scene.shown[i]).name, Qt::ElideRight, band.width() / 2);
        const QRect area(band.left(), band.top() + 1, mCanvas.textWidth(text) + 2 * kPadding,
                         mCanvas.metrics.height() - 1);
        if (area.adjusted(0, 0, kNameGap, 0).intersects(cursorArea(i))) {
            return; // the readouts say the names as well; all of them or none, to look calm
        }
        names.emplace_back(text, area);
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto& [text, area] = names[i];
        mCanvas.painter.fillRect(area, veiled(mCanvas.look.back, kNameAlpha));
        mCanvas.painter.setPen(mCanvas.textColorOf(scene.shown[i]));
        mCanvas.painter.drawText(area.adjusted(kPadding, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                                 text);
    }
}

void GraphReadouts::paintTopMarkers() const
{
    mCanvas.painter.setRenderHint(QPainter::Antialiasing);
    std::vector<QRect> used;
    for (const GraphModel::TopMarker& marker : mCanvas.model.topMarkers()) {
        const double x = mCanvas.xOf(marker.time);
        if (!mCanvas.inPlot(x)) {
            continue;
        }
        const bool known = marker.number < mCanvas.model.count();
        const QString name = known ? mCanvas.model.parameter(marker.number).name : QString();
        paintTopMarker(x,
                       {GraphTexts::timed(name, marker.time),
                        known ? mCanvas.textColorOf(marker.number) : mCanvas.look.plotText()},
                       used);
    }
    mCanvas.painter.setRenderHint(QPainter::Antialiasing, false);
}

void GraphReadouts::paintTopMarker(double x, const Note& note, std::vector<QRect>& used) const
{
    const QRect plot = mCanvas.scene.layout.plot();
    const int line = mCanvas.metrics.height();
    QPainterPath triangle(QPointF(x - kTriangle, plot.top()));
    triangle.lineTo(x + kTriangle, plot.top());
    triangle.lineTo(x, plot.top() + 1.6 * kTriangle);
    triangle.closeSubpath();
    mCanvas.painter.fillPath(triangle, note.color);
    // Labels of near markers go below each other.
    QPoint anchor(qRound(x), plot.top() + line / 2);
    const auto isUsed = [&](const QRect& other) {
        return other.intersects(areaOf(anchor, note, plot));
    };
    while (anchor.y() < plot.bottom() && std::any_of(used.begin(), used.end(), isUsed)) {
        anchor.ry() += line;
    }
    used.push_back(areaOf(anchor, note, plot));
    paintNote(anchor, note, plot);
}

// --- values

void GraphReadouts::paintCursor() const
{
    if (!mCanvas.look.cursorOn || mCanvas.pointer.hovering) {
        return;
    }
    const double time = mCanvas.model.cursorTime();
    std::vector<Note> notes;
    for (const unsigned int trace : mCanvas.scene.shown) {
        notes.push_back(
            {GraphTexts::readout(mCanvas.model, trace, time), mCanvas.textColorOf(trace)});
    }
    paintAt(time, mCanvas.scene.layout.plot().center().y(), notes);
}

void GraphReadouts::paintHover() const
{
    if (!mCanvas.pointer.hovering) {
        return;
    }
    const double time = mCanvas.mouseTime();
    const bool named = !mCanvas.bandsHoldText();
    std::vector<Note> notes;
    for (std::size_t i = 0; i < mCanvas.scene.shown.size(); ++i) {
        notes.push_back(hoverNote(i, time, named));
    }
    const int lines = boxLines(notes);
    if (named && static_cast<int>(notes.size()) > lines) {
        // The nearest traces, in their order in the plot; the last line counts the others.
        const auto end = notes.begin() + std::max(0, lines - 1);
        std::nth_element(notes.begin(), end, notes.end(),
                         [](const Note& a, const Note& b) { return a.distance < b.distance; });
        std::sort(notes.begin(), end,
                  [](const Note& a, const Note& b) { return a.position < b.position; });
    }
    paintAt(time, mCanvas.pointer.mouse.y(), notes);
}

GraphReadouts::Note GraphReadouts::hoverNote(std::size_t position, double time, bool named) const
{
    const unsigned int trace = mCanvas.scene.shown[position];
    QString text = GraphTexts::hover(mCanvas.model, trace, time);
    if (named) {
        text.prepend(mCanvas.model.parameter(trace).name + QStringLiteral("  "));
    }
    return {text, mCanvas.textColorOf(trace), distanceToMouse(position, time), position};
}

double GraphReadouts::distanceToMouse(std::size_t position, double time) const
{
    const unsigned int trace = mCanvas.scene.shown[position];
    double value = 0.0;
    if (!mCanvas.model.getValue(trace, time, value) || !std::isfinite(value)) {
        return std::numeric_limits<double>::infinity();
    }
    const GraphYScale& scale = mCanvas.model.scaleOf(trace);
    return std::abs(mCanvas.pointer.mouse.y() - GraphLayout::yOf(value,
                                                                 mCanvas.scene.bandOf(position),
                                                                 scale.minimum, scale.maximum));
}

void GraphReadouts::paintAt(double time, int y, const std::vector<Note>& notes) const
{
    const double x = mCanvas.xOf(time);
    if (!mCanvas.inPlot(x)) {
        return;
    }
    if (!mCanvas.bandsHoldText()) {
        paintBox(QPoint(qRound(x), y), notes);
        return;
    }
    for (std::size_t i = 0; i < notes.size(); ++i) {
        paintNote(anchorAt(i, time), notes[i], freeArea(i));
    }
}

// --- in the bands

QRect GraphReadouts::freeArea(std::size_t position) const
{
    const int line = mCanvas.metrics.height();
    QRect band = mCanvas.scene.bandOf(position).adjusted(0, 1, 0, 0);
    if (mCanvas.pointer.markersOn && position + 1 == mCanvas.scene.shown.size() &&
        band.height() >= 3 * line) {
        band.adjust(0, 0, 0, -line); // the markers' flags are there
    }
    return band;
}

QPoint GraphReadouts::anchorAt(std::size_t position, double time) const
{
    const unsigned int trace = mCanvas.scene.shown[position];
    const QRect area = freeArea(position);
    double value = 0.0;
    const bool low = mCanvas.model.getValue(trace, time, value) &&
                     mCanvas.model.scaleOf(trace).fraction(value) < 0.5;
    return {qRound(mCanvas.xOf(time)), low ? area.top() : area.bottom()};
}

QRect GraphReadouts::cursorArea(std::size_t position) const
{
    const double time = mCanvas.model.cursorTime();
    if (!mCanvas.look.cursorOn || mCanvas.pointer.hovering || !mCanvas.inPlot(mCanvas.xOf(time))) {
        return {};
    }
    const unsigned int trace = mCanvas.scene.shown[position];
    const Note note{GraphTexts::readout(mCanvas.model, trace, time), {}};
    return areaOf(anchorAt(position, time), note, freeArea(position));
}

void GraphReadouts::paintNote(const QPoint& anchor, const Note& note, const QRect& area) const
{
    const QRect box = areaOf(anchor, note, area);
    mCanvas.painter.fillRect(box, veiled(mCanvas.look.back, kBackAlpha));
    mCanvas.painter.setPen(note.color);
    // Where there is too little room the value counts more than the name before it.
    mCanvas.painter.drawText(box, Qt::AlignCenter,
                             mCanvas.metrics.elidedText(note.text, Qt::ElideLeft, box.width()));
}

QRect GraphReadouts::areaOf(const QPoint& anchor, const Note& note, const QRect& area) const
{
    const QSize size(mCanvas.textWidth(note.text) + 2 * kPadding,
                     std::min(mCanvas.metrics.height(), area.height()));
    return GraphLayout::boxBeside(anchor, size, area);
}

// --- in a box

int GraphReadouts::boxLines(const std::vector<Note>& notes) const
{
    const QSize plot = mCanvas.scene.layout.plot().size();
    const int line = mCanvas.metrics.height();
    const int fitting = std::max(0, (plot.height() - 4 * kPadding) / line);
    int width = 1;
    for (const Note& note : notes) {
        width = std::max(width, mCanvas.textWidth(note.text) + 2 * kPadding);
    }
    const int modest = plot.width() * plot.height() / (kBoxPart * width * line);
    return std::clamp(modest, std::min(kFewLines, fitting), fitting);
}

void GraphReadouts::paintBox(const QPoint& anchor, const std::vector<Note>& notes) const
{
    const QRect plot = mCanvas.scene.layout.plot();
    const int height = mCanvas.metrics.height();
    const int fitting = boxLines(notes);
    const int count = static_cast<int>(notes.size());
    // The last line counts what does not fit.
    const int shown = count <= fitting ? count : std::max(0, fitting - 1);
    QStringList lines;
    for (int i = 0; i < shown; ++i) {
        lines.append(notes[static_cast<std::size_t>(i)].text);
    }
    if (shown < count) {
        lines.append(QCoreApplication::translate("VELIX::GraphOverlay", "+ %n more", nullptr,
                                                 count - shown));
    }
    int width = 0;
    for (const QString& text : qAsConst(lines)) {
        width = std::max(width, mCanvas.textWidth(text));
    }
    const QSize size(width + 2 * kPadding, static_cast<int>(lines.size()) * height + 2 * kPadding);
    const QRect box = GraphLayout::boxBeside(
        anchor, size, plot.adjusted(kPadding, kPadding, -kPadding, -kPadding));
    mCanvas.painter.fillRect(box, veiled(mCanvas.look.back, kBackAlpha));
    mCanvas.fillFrame(box, mCanvas.look.separator());
    for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
        mCanvas.painter.setPen(i < shown ? notes[static_cast<std::size_t>(i)].color
                                         : mCanvas.look.plotMutedText());
        const QRect line(box.left() + kPadding, box.top() + kPadding + i * height,
                         box.width() - 2 * kPadding, height);
        mCanvas.painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                                 mCanvas.metrics.elidedText(lines[i], Qt::ElideLeft, line.width()));
    }
}

} // namespace VELIX
