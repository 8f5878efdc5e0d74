#include "gui/look/ColorButton.h"

#include "gui/look/Palette.h"

#include <QPainter>

namespace VELIX {

namespace {

constexpr int kWidth = 32;
constexpr int kHeight = 16;
constexpr int kGap = 6; ///< between the field and the text
constexpr int kPercent = 100;

/// Draws the chequered background that shows through a colour that does not cover.
void paintBackground(QPainter& painter, const QRect& field)
{
    const int square = field.height() / 2;
    painter.fillRect(field, Qt::white);
    for (int x = field.left(), row = 0; x <= field.right(); x += square, row = 1 - row) {
        painter.fillRect(QRect(x, field.top() + row * square, square, square) & field,
                         Qt::lightGray);
    }
}

QPixmap fieldOf(const QColor& color, qreal ratio)
{
    QPixmap pixmap(QSize(kWidth + kGap, kHeight) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.fillRect(0, 0, kWidth, kHeight, Palette::current().controlLine);
    const QRect field(1, 1, kWidth - 2, kHeight - 2);
    const QRect right = field.adjusted(field.width() / 2, 0, 0, 0);
    painter.fillRect(field, QColor(color.rgb()));
    paintBackground(painter, right);
    painter.fillRect(right, color);
    return pixmap;
}

} // namespace

ColorButton::ColorButton(const QString& text, QWidget* parent) : QPushButton(text, parent)
{
    setIconSize({kWidth + kGap, kHeight});
    setAutoDefault(false);
}

void ColorButton::setColor(const QColor& color)
{
    mColor = color;
    setIcon(QIcon(fieldOf(color, devicePixelRatioF())));
    const QString opacity = color.alpha() == 255
                                ? QString()
                                : tr(", %1 % opaque").arg(qRound(color.alphaF() * kPercent));
    setAccessibleDescription(color.name() + opacity);
    setToolTip(color.name() + opacity);
}

} // namespace VELIX
