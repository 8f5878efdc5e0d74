#include "views/events/EventPrint.h"

#include "gui/look/Palette.h"
#include "views/common/CursorTime.h"
#include "views/events/EventTint.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

constexpr double kFontSize = 9.0; // points, as all that follows
constexpr double kPadding = 3.0;
constexpr double kGap = 14.0;
constexpr double kRule = 0.5;
constexpr double kPointsPerInch = 72.0;

} // namespace

EventPrint::EventPrint(std::vector<const RecordLimit*> events, const Texts& texts,
                       QPaintDevice& device, const QSizeF& room)
    : mEvents(std::move(events)), mTexts(texts), mRoom(room)
{
    mFont.setPointSizeF(kFontSize);
    mBold = mFont;
    mBold.setBold(true);
    mPoint = device.logicalDpiY() / kPointsPerInch;
    const QFontMetricsF bold(mBold, &device);
    mLine = bold.height() + 2 * kPadding * mPoint;
    mTimeWidth = std::max(bold.horizontalAdvance(mTexts.time),
                          bold.horizontalAdvance(QStringLiteral("00:00:00.000"))) +
                 kGap * mPoint;
    breakPages(device);
}

double EventPrint::rowHeight(const RecordLimit& event, QPaintDevice& device) const
{
    const QFontMetricsF metrics(mFont, &device);
    const double width = mRoom.width() - mTimeWidth - 2 * kPadding * mPoint;
    if (metrics.horizontalAdvance(event.text) <= width) {
        return mLine;
    }
    const QRectF area(0, 0, width, mRoom.height());
    const double text =
        metrics.boundingRect(area, Qt::TextWrapAnywhere | Qt::TextWordWrap, event.text).height();
    // A row higher than a page would fit on none.
    return std::min(text + 2 * kPadding * mPoint, mRoom.height() - mLine);
}

void EventPrint::breakPages(QPaintDevice& device)
{
    mPageStarts = {0};
    mHeights.reserve(mEvents.size());
    double bottom = mLine; // the headings
    for (std::size_t row = 0; row < mEvents.size(); ++row) {
        const double height = rowHeight(*mEvents[row], device);
        if (bottom + height > mRoom.height() && row > mPageStarts.back()) {
            mPageStarts.push_back(row);
            bottom = mLine;
        }
        bottom += height;
        mHeights.push_back(height);
    }
}

int EventPrint::pageCount() const
{
    return static_cast<int>(mPageStarts.size());
}

void EventPrint::paintPage(QPainter& painter, int page) const
{
    painter.setPen(Palette::light().text);
    if (mEvents.empty()) {
        painter.setFont(mFont);
        painter.drawText(QRectF({0, 0}, mRoom), Qt::TextWordWrap, mTexts.none);
        return;
    }
    paintHeading(painter);
    const auto index = static_cast<std::size_t>(page);
    const std::size_t end =
        index + 1 < mPageStarts.size() ? mPageStarts[index + 1] : mEvents.size();
    double top = mLine;
    for (std::size_t row = mPageStarts[index]; row < end; ++row) {
        paintRow(painter, row, top);
        top += mHeights[row];
    }
}

void EventPrint::paintHeading(QPainter& painter) const
{
    painter.fillRect(QRectF(0, 0, mRoom.width(), mLine), Palette::light().header);
    painter.setFont(mBold);
    const double padding = kPadding * mPoint;
    painter.drawText(QRectF(padding, 0, mTimeWidth, mLine), Qt::AlignVCenter, mTexts.time);
    painter.drawText(QRectF(mTimeWidth + padding, 0, mRoom.width() - mTimeWidth, mLine),
                     Qt::AlignVCenter, mTexts.event);
}

void EventPrint::paintRow(QPainter& painter, std::size_t row, double top) const
{
    const RecordLimit& event = *mEvents[row];
    const double padding = kPadding * mPoint;
    const double height = mHeights[row];
    const QRectF text(mTimeWidth, top, mRoom.width() - mTimeWidth, height);
    if (event.color.isValid()) {
        painter.fillRect(text, blended(eventTint(event.color), Qt::white));
    }
    painter.fillRect(QRectF(0, top + height - kRule * mPoint, mRoom.width(), kRule * mPoint),
                     Palette::light().line);
    painter.setFont(mFont);
    painter.drawText(QRectF(padding, top + padding, mTimeWidth, height),
                     CursorTime::timeText(CursorTime::milliseconds(event.time)));
    painter.drawText(text.adjusted(padding, padding, -padding, 0),
                     Qt::TextWrapAnywhere | Qt::TextWordWrap, event.text);
}

} // namespace VELIX
