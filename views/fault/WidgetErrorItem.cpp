#include "views/fault/WidgetErrorItem.h"

#include <QPainter>

namespace {

constexpr int kFontPixels = 10;
constexpr int kTextStart = 4; // pixels from the bottom edge
constexpr int kTextEnd = 2;   // pixels left free at the top edge

/// Draws a text in one line if it fits, else in as many as the cell has space for, else shortened.
void drawFitting(QPainter& painter, const QRect& area, const QString& text)
{
    constexpr int kWrapped = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
    const QFontMetrics metrics = painter.fontMetrics();
    if (metrics.horizontalAdvance(text) > area.width() &&
        area.contains(metrics.boundingRect(area, kWrapped, text))) {
        painter.drawText(area, kWrapped, text);
        return;
    }
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(text, Qt::ElideRight, area.width()));
}

} // namespace

WidgetErrorItem::WidgetErrorItem(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void WidgetErrorItem::setText(const QString& text)
{
    mText = text;
    update();
}

void WidgetErrorItem::setType(int type)
{
    mType = type;
    setAttribute(Qt::WA_OpaquePaintEvent, VELIX::errorColor(type, true).isValid());
    update();
}

void WidgetErrorItem::setErrorState(bool state)
{
    if (mErrorState != state) {
        mErrorState = state;
        update();
    }
}

void WidgetErrorItem::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor background = VELIX::errorColor(mType, mErrorState);
    if (background.isValid()) {
        painter.fillRect(rect(), background);
    }
    if (mType == VELIX::eErrorNone) {
        return;
    }
    QFont small = font();
    small.setPixelSize(kFontPixels);
    painter.setFont(small);
    painter.setPen(Qt::black);
    painter.translate(0, height());
    painter.rotate(-90); // x now runs up from the bottom edge, y to the right from the left one
    drawFitting(painter, QRect(kTextStart, 0, height() - kTextStart - kTextEnd, width()), mText);
}
