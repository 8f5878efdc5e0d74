#pragma once

#include <QSlider>

namespace VELIX {

/// A horizontal slider whose handle jumps to where it is clicked and can be dragged from there.
class PositionSlider : public QSlider
{
    Q_OBJECT

public:
    explicit PositionSlider(QWidget* parent = nullptr) : QSlider(Qt::Horizontal, parent) {}

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace VELIX
