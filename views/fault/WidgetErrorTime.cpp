#include "views/fault/WidgetErrorTime.h"

#include "gui/look/Palette.h"
#include "views/common/CursorTime.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cstdlib>

namespace VELIX {

namespace {

constexpr int kHeight = 30;
constexpr int kNotePixels = 12;
constexpr int kNoteMargin = 8;

/// The types of the bands from top to bottom.
constexpr int kBandTypes[] = {eErrorFault, eErrorWarning, eErrorInfo};
constexpr int kBands = 3;

QString lineOf(const ProfileParameter& parameter)
{
    switch (parameter.errorType) {
    case eErrorFault:
        return WidgetErrorTime::tr("Fault: %1").arg(parameter.name);
    case eErrorWarning:
        return WidgetErrorTime::tr("Warning: %1").arg(parameter.name);
    case eErrorInfo:
        return WidgetErrorTime::tr("Info: %1").arg(parameter.name);
    default:
        return parameter.name;
    }
}

} // namespace

WidgetErrorTime::WidgetErrorTime(QWidget* parent) : QWidget(parent)
{
    setFixedHeight(kHeight);
    setAutoFillBackground(true);
    QPalette white = palette();
    white.setColor(QPalette::Window, Qt::white);
    setPalette(white);
}

void WidgetErrorTime::setData(const FaultMatrix& matrix)
{
    mMatrix = matrix;
    mTimeline.setMatrix(matrix);
    setAccessibleName(tr("Times of the errors of %1").arg(matrix.name));
    forgetFrame();
}

void WidgetErrorTime::updateRecord(RecordData* record)
{
    mTimeline.setRecord(record);
    forgetFrame();
}

void WidgetErrorTime::setTime(double seconds)
{
    const auto inBar = [this](int x) { return std::clamp(x, -1, width()); }; // or just beside it
    const int before = inBar(cursorX());
    mCursor = seconds;
    const int now = inBar(cursorX());
    if (now != before) {
        // At once, since the bar has to keep up with the replay.
        repaint(std::min(before, now), 0, std::abs(now - before) + 1, height());
    }
}

QString WidgetErrorTime::tipText(int x) const
{
    if (!mTimeline.hasRecord()) {
        return {};
    }
    if (!mTimeline.hasSamples()) {
        return tr("The record has no messages of this matrix.");
    }
    const std::uint32_t word = mTimeline.wordAt(x, width());
    QStringList lines(CursorTime::timeText(CursorTime::milliseconds(mTimeline.timeAt(x, width()))));
    for (const int type : {eErrorFault, eErrorWarning, eErrorInfo, eErrorNone}) {
        for (const auto& [bit, parameter] : mMatrix.bits) {
            const bool set = bit >= 0 && bit < 32 && ((word >> bit) & 1) != 0;
            if (set && parameter.errorType == type) {
                lines.append(lineOf(parameter));
            }
        }
    }
    if (lines.size() == 1) {
        lines.append(tr("No error set"));
    }
    return lines.join(QLatin1Char('\n'));
}

bool WidgetErrorTime::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const int x = help->pos().x();
        // The next pixel has a text of its own. The first line is a time, so no name from the
        // profile can turn the text into rich text.
        QToolTip::showText(help->globalPos(), tipText(x), this, QRect(x, 0, 1, height()));
        return true;
    }
    return QWidget::event(event);
}

void WidgetErrorTime::resizeEvent(QResizeEvent*)
{
    forgetFrame();
}

void WidgetErrorTime::forgetFrame()
{
    mFrame = QPixmap();
    update();
}

void WidgetErrorTime::paintEvent(QPaintEvent*)
{
    if (mFrame.isNull() || mFrame.devicePixelRatioF() != devicePixelRatioF()) {
        drawFrame();
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, mFrame);
    const int x = cursorX();
    if (x >= 0 && x < width()) {
        painter.fillRect(x, 0, 1, height(), Qt::black);
    }
}

void WidgetErrorTime::drawFrame()
{
    const double ratio = devicePixelRatioF();
    mFrame = QPixmap(size() * ratio);
    mFrame.setDevicePixelRatio(ratio);
    mFrame.fill(Qt::white);
    QPainter painter(&mFrame);
    drawBands(painter);
    if (mTimeline.hasRecord() && !mTimeline.hasSamples()) {
        drawNote(painter);
    }
}

/// Writes why the bar is empty, which would otherwise mean that there was no error.
void WidgetErrorTime::drawNote(QPainter& painter) const
{
    QFont small = font();
    small.setPixelSize(kNotePixels);
    painter.setFont(small);
    const QString note =
        painter.fontMetrics().elidedText(tipText(0), Qt::ElideRight, width() - 4 * kNoteMargin);
    const QRect area = painter.fontMetrics().boundingRect(rect(), Qt::AlignCenter, note);
    // The lines between the bands would run through the text.
    painter.fillRect(area.adjusted(-kNoteMargin, 0, kNoteMargin, 0), Qt::white);
    painter.setPen(Palette::light().mutedText); // the background is white in every look
    painter.drawText(rect(), Qt::AlignCenter, note);
}

void WidgetErrorTime::drawBands(QPainter& painter) const
{
    const int band = (height() + 1) / kBands;
    for (int i = 0; i < kBands; ++i) {
        const QColor color = errorColor(kBandTypes[i], true);
        for (const FaultTimeline::Span& span : mTimeline.spans(kBandTypes[i], width())) {
            painter.fillRect(span.left, i * band, span.width, band, color);
        }
    }
    // Filled, not drawn: on fine displays a pen would straddle the edge.
    const QColor grey(200, 200, 200);
    for (const int y : {0, band, 2 * band, height() - 1}) {
        painter.fillRect(0, y, width(), 1, grey);
    }
    for (const int x : {0, width() - 1}) {
        painter.fillRect(x, 0, 1, height(), grey);
    }
}

} // namespace VELIX
