#include "views/map/MapValues.h"

#include "gui/look/Palette.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace VELIX {

namespace {

constexpr int kMargin = 8;
constexpr int kGap = 8;
constexpr int kPadding = 4;
constexpr int kRadius = 10;
constexpr double kAlpha = 0.7; // of the background of a value: the map shows, texts are readable

} // namespace

MapValues::MapValues(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void MapValues::setRows(std::vector<Row> rows)
{
    mRows = std::move(rows);
    mLabelWidth = 0;
    mValueWidth = 0;
    for (const Row& row : mRows) {
        measure(row);
    }
    updateGeometry();
    update();
}

void MapValues::setValue(std::size_t row, const QString& value, const QColor& background)
{
    Row& there = mRows[row];
    if (there.value == value && there.background == background) {
        return;
    }
    there.value = value;
    there.background = background;
    const int before = mValueWidth;
    measure(there);
    if (mValueWidth != before) {
        updateGeometry();
    }
    update();
}

void MapValues::measure(const Row& row)
{
    const QFontMetrics metrics = fontMetrics();
    mLabelWidth = std::max(mLabelWidth, metrics.horizontalAdvance(row.label));
    mValueWidth = std::max(mValueWidth, metrics.horizontalAdvance(row.value) + 2 * kPadding);
}

int MapValues::rowHeight() const
{
    return fontMetrics().height() + kPadding;
}

QSize MapValues::sizeHint() const
{
    return {2 * kMargin + mLabelWidth + kGap + mValueWidth,
            2 * kMargin - kPadding + rowHeight() * static_cast<int>(mRows.size())};
}

void MapValues::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        setRows(std::exchange(mRows, {}));
    }
}

void MapValues::paintEvent(QPaintEvent*)
{
    const Palette& palette = Palette::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QColor background = palette.surface;
    background.setAlphaF(kAlpha);
    painter.setBrush(background);
    painter.drawRoundedRect(rect(), kRadius, kRadius);
    int top = kMargin - kPadding / 2;
    for (const Row& row : mRows) {
        const QRect line(kMargin, top, width() - 2 * kMargin, rowHeight());
        QRect value = line;
        value.setLeft(line.right() + 1 - mValueWidth);
        QColor ink = palette.text;
        if (row.background.isValid()) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(row.background);
            painter.drawRoundedRect(value.adjusted(0, 1, 0, -1), kPadding, kPadding);
            ink = Palette::textOn(row.background);
        }
        painter.setPen(palette.text);
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, row.label);
        painter.setPen(ink);
        painter.drawText(value.adjusted(kPadding, 0, -kPadding, 0),
                         Qt::AlignRight | Qt::AlignVCenter, row.value);
        top += rowHeight();
    }
}

} // namespace VELIX
