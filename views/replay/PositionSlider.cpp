#include "views/replay/PositionSlider.h"

#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>

namespace VELIX {

void PositionSlider::mousePressEvent(QMouseEvent* event)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const auto rect = [&](QStyle::SubControl control) {
        return style()->subControlRect(QStyle::CC_Slider, &option, control, this);
    };
    const QRect handle = rect(QStyle::SC_SliderHandle);
    if (event->button() == Qt::LeftButton && !handle.contains(event->pos())) {
        const QRect groove = rect(QStyle::SC_SliderGroove);
        const int left = event->pos().x() - groove.left() - handle.width() / 2;
        setValue(QStyle::sliderValueFromPosition(
            minimum(), maximum(), left, groove.width() - handle.width(), option.upsideDown));
    }
    QSlider::mousePressEvent(event); // takes hold of the handle, which is here now
}

} // namespace VELIX
