#pragma once

#include <QSlider>

namespace VELIX {

/// A horizontal slider that goes where it is clicked, and can be dragged on from there.
class PositionSlider : public QSlider
{
    Q_OBJECT

public:
    explicit PositionSlider(QWidget* parent = nullptr) : QSlider(Qt::Horizontal, parent) {}

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace VELIX
