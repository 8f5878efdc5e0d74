// First, since the toolkit includes the same headers without the functions.
#include "platform/tessel/opengl/Gl.h"

#include "gui/look/Palette.h"
#include "platform/tessel/opengl/Blending.h"
#include "platform/tessel/opengl/GlHandler.h"
#include "views/map/MapOverlay.h"
#include "views/map/model/MapColoring.h"

#include <QFile>

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

using Tessel::OpenGL::Blending;
using Tessel::OpenGL::Color;
using Tessel::OpenGL::GlHandler;

constexpr const char* kFontFile = ":monofont.ttf";
constexpr const char* kFontName = "mononfont";
constexpr int kFontPixels = 14;
constexpr double kEdge = 5.0; // between texts and the window's edges, logical pixels
constexpr double kPadding = 4.0;
constexpr double kLine = 2.0;
constexpr double kTick = 6.0;
constexpr double kLegendWidth = 12.0;
constexpr double kLegendHeight = 96.0;
constexpr int kLegendSteps = 16;
constexpr double kMouseGap = 20.0;
constexpr double kMark = 9.0;
constexpr double kAircraft = 20.0;   // half of its symbol
constexpr double kPanelAlpha = 0.82; // lets the map through and keeps texts readable

Color colorOf(const QColor& color, double alpha = 1.0)
{
    return {static_cast<float>(color.redF()), static_cast<float>(color.greenF()),
            static_cast<float>(color.blueF()), static_cast<float>(alpha)};
}

} // namespace

void MapOverlay::load(double ratio)
{
    mRatio = ratio;
    QFile file(QString::fromLatin1(kFontFile));
    const QByteArray font = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    // Without it the texts come in the system's font, at the same size.
    static_cast<void>(mFont.load(font.constData(), static_cast<std::size_t>(font.size()), kFontName,
                                 static_cast<int>(std::lround(kFontPixels * ratio))));
}

void MapOverlay::release()
{
    mFont.release();
    mArea.release();
}

void MapOverlay::fill(GlHandler& gl, const QRectF& area, const Color& color)
{
    mArea.clear();
    mArea.setColor(color);
    for (const double x : {area.left(), area.right()}) {
        for (const double y : {area.top(), area.bottom()}) {
            mArea.addVertex(static_cast<float>(x), static_cast<float>(y));
        }
    }
    const Blending blending(Blending::Colors::Plain);
    mArea.render(gl);
}

void MapOverlay::panel(GlHandler& gl, const QRectF& area)
{
    fill(gl, area, colorOf(Palette::current().surface, kPanelAlpha));
    mFont.setColor(colorOf(Palette::current().text));
}

void MapOverlay::paint(GlHandler& gl, const QSize& pixels, const Content& content)
{
    mPixels = pixels;
    QRectF background =
        paintLines(gl, QString::fromLatin1(MapTexts::kAttribution), pixels.height());
    if (!content.notice.isEmpty()) {
        background = background.united(paintLines(gl, content.notice, background.top()));
    }
    const Room room = paintScale(gl, content, background);
    if (content.legend != nullptr) {
        paintLegend(gl, content, room);
    }
    if (!content.readout.isEmpty()) {
        paintReadout(gl, content);
    }
}

QStringList MapOverlay::wrapped(const QString& text, double width) const
{
    QStringList lines;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        const QString longer = lines.isEmpty() ? word : lines.last() + QLatin1Char(' ') + word;
        if (lines.isEmpty() || mFont.width(longer) > width) {
            lines.append(word);
        } else {
            lines.last() = longer;
        }
    }
    return lines;
}

/// On the right, in as many lines as a narrow window needs: all of it must be seen. Returns its
/// background, which reaches down to the bottom.
QRectF MapOverlay::paintLines(GlHandler& gl, const QString& text, double bottom)
{
    const double right = mPixels.width() - kEdge * mRatio;
    const QStringList lines = wrapped(text, right);
    double width = 0.0;
    for (const QString& line : lines) {
        width = std::max(width, mFont.width(line));
    }
    double y = std::floor(bottom - lines.size() * mFont.height() - kEdge * mRatio);
    const QRectF background(
        QPointF(std::floor(right - width) - kPadding * mRatio, y - kPadding * mRatio),
        QPointF(mPixels.width(), bottom));
    panel(gl, background);
    for (const QString& line : lines) {
        mFont.render(gl, std::floor(right - mFont.width(line)), y, line);
        y += mFont.height();
    }
    return background;
}

/// Beside the texts at the bottom, or above them where that leaves no room.
MapOverlay::Room MapOverlay::paintScale(GlHandler& gl, const Content& content, const QRectF& texts)
{
    const double edge = kEdge * mRatio;
    const double padding = kPadding * mRatio;
    const double width = std::max(content.scalePixels, mFont.width(content.scale.text));
    const double height = mFont.height() + padding;
    const bool beside = edge + width + 3.0 * padding < texts.left();
    const double row = texts.top();
    const double bottom = beside ? mPixels.height() - edge : row - edge;
    Room room{row, row};
    if (content.scalePixels > 0.0) {
        const QRectF area(edge, std::floor(bottom - height - padding), width + 2.0 * padding,
                          height + padding);
        room.left = area.top();
        panel(gl, area);
        mFont.render(gl, area.left() + padding, area.top() + padding / 2.0, content.scale.text);
        const Color ink = colorOf(Palette::current().text);
        const double x = std::floor(area.left() + padding);
        const double y = std::floor(area.bottom() - padding / 2.0 - kLine * mRatio);
        const double line = kLine * mRatio;
        fill(gl, QRectF(x, y, content.scalePixels, line), ink);
        for (const double at : {x, x + content.scalePixels - line}) {
            fill(gl, QRectF(at, y + line - kTick * mRatio, line, kTick * mRatio), ink);
        }
    }
    return room;
}

/// On the right, or on the left while the aircraft is there; it stays until the aircraft comes.
QRectF MapOverlay::placeLegend(const QSizeF& size, const Room& room,
                               const std::optional<QPointF>& aircraft)
{
    const double edge = kEdge * mRatio;
    const auto place = [&](bool left) {
        const double x = left ? edge : std::floor(mPixels.width() - size.width() - edge);
        const double bottom = left ? room.left : room.right;
        return QRectF(QPointF(x, std::floor(bottom - size.height() - edge)), size);
    };
    const auto hides = [&](const QRectF& area) {
        const double around = kAircraft * mRatio;
        return aircraft && area.adjusted(-around, -around, around, around).contains(*aircraft);
    };
    if (hides(place(mLegendLeft)) && !hides(place(!mLegendLeft))) {
        mLegendLeft = !mLegendLeft;
    }
    return place(mLegendLeft);
}

void MapOverlay::paintLegend(GlHandler& gl, const Content& content, const Room& room)
{
    const MapColoring& legend = *content.legend;
    const double padding = 2.0 * kPadding * mRatio;
    const double bar = kLegendWidth * mRatio;
    const double line = mFont.height();
    double labels = std::max(mFont.width(legend.lowest), mFont.width(legend.highest));
    for (const MapColoring::Passed& passed : legend.passed) {
        labels = std::max(labels, mFont.width(passed.label));
    }
    const double width = std::max(mFont.width(legend.title), bar + padding + labels) + 2 * padding;
    const double swatches = static_cast<double>(legend.passed.size()) * line;
    const double height = line + kLegendHeight * mRatio + swatches + 2.5 * padding;
    const QRectF area = placeLegend({width, height}, room, content.aircraft);
    if (area.left() < 0.0 || area.top() < mPixels.height() / 3.0) {
        return; // a small window is for the map
    }
    panel(gl, area);
    mFont.render(gl, area.left() + padding, area.top() + padding / 2.0, legend.title);

    const double top = std::floor(area.top() + line + padding);
    const double step = kLegendHeight * mRatio / kLegendSteps;
    for (int i = 0; i < kLegendSteps; ++i) {
        const QRgb color = MapColoring::scale(1.0 - (i + 0.5) / kLegendSteps);
        fill(gl, QRectF(area.left() + padding, top + i * step, bar, step), colorOf(QColor(color)));
    }
    const double x = std::floor(area.left() + 2.0 * padding + bar);
    mFont.render(gl, x, top, legend.highest);
    mFont.render(gl, x, std::floor(top + kLegendHeight * mRatio - line), legend.lowest);
    double row = std::floor(top + kLegendHeight * mRatio + padding / 2.0);
    for (const MapColoring::Passed& passed : legend.passed) {
        const double inset = std::floor((line - bar) / 2.0);
        fill(gl, QRectF(area.left() + padding, row + inset, bar, bar),
             colorOf(QColor(passed.color)));
        mFont.render(gl, x, row, passed.label);
        row += line;
    }
}

void MapOverlay::paintReadout(GlHandler& gl, const Content& content)
{
    const double padding = kPadding * mRatio;
    double width = 0.0;
    for (const QString& text : content.readout) {
        width = std::max(width, mFont.width(text));
    }
    const double line = mFont.height();
    QRectF area(0.0, 0.0, width + 4.0 * padding, content.readout.size() * line + 2.0 * padding);
    const double gap = kMouseGap * mRatio;
    // Below the mouse or above it, and never out of the window: the place itself stays visible.
    const bool fitsBelow = content.mouse.y() + gap + area.height() < mPixels.height();
    const double x =
        std::min(content.mouse.x() - area.width() / 2.0, mPixels.width() - area.width());
    const double y = content.mouse.y() + (fitsBelow ? gap : -gap - area.height());
    area.moveTo(std::floor(std::max(x, 0.0)), std::floor(std::max(y, 0.0)));
    if (content.mark) {
        const double side = kMark * mRatio;
        QRectF mark(0.0, 0.0, side, side);
        mark.moveCenter(*content.mark);
        fill(gl, mark, colorOf(Qt::white));
        mark.adjust(2.0 * mRatio, 2.0 * mRatio, -2.0 * mRatio, -2.0 * mRatio);
        fill(gl, mark, colorOf(Palette::light().accent));
    }
    panel(gl, area);
    double top = area.top() + padding;
    for (const QString& text : content.readout) {
        mFont.render(gl, area.left() + 2.0 * padding, std::floor(top), text);
        top += line;
    }
}

} // namespace VELIX
