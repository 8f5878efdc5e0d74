// What the graph does with keys.
#include "views/graph/widget/WidgetGraphBase.h"

#include <QKeyEvent>

#include <algorithm>
#include <cmath>

using VELIX::GraphLayout;

namespace {

constexpr double kFineStep = 1.0;    ///< pixels
constexpr double kCoarseStep = 10.0; ///< pixels, with Shift
constexpr int kCursorActiveMs = 5000;

Qt::KeyboardModifier modifierOf(int key)
{
    switch (key) {
    case Qt::Key_Shift:
        return Qt::ShiftModifier;
    case Qt::Key_Control:
        return Qt::ControlModifier;
    case Qt::Key_Alt:
        return Qt::AltModifier;
    default:
        return Qt::NoModifier;
    }
}

} // namespace

void WidgetGraphBase::keyPressEvent(QKeyEvent* event)
{
    mHeldKeys |= modifierOf(event->key());
    const Qt::KeyboardModifiers held = event->modifiers();
    // With these the arrow keys belong to the window.
    if (held & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        QOpenGLWidget::keyPressEvent(event);
        return;
    }
    const double step = held.testFlag(Qt::ShiftModifier) ? kCoarseStep : kFineStep;
    switch (event->key()) {
    case Qt::Key_Left:
        moveCursorBy(-step, 0.0);
        break;
    case Qt::Key_Right:
        moveCursorBy(step, 0.0);
        break;
    case Qt::Key_Up:
        moveCursorBy(0.0, step);
        break;
    case Qt::Key_Down:
        moveCursorBy(0.0, -step);
        break;
    default:
        QOpenGLWidget::keyPressEvent(event);
    }
}

void WidgetGraphBase::moveCursorBy(double pixelsX, double pixelsY)
{
    const GraphLayout& parts = layoutOfParts();
    if (parts.empty()) {
        return;
    }
    double value = mModel.cursorValue();
    if (pixelsY != 0.0) {
        const VELIX::GraphYScale& old = mModel.scaleOf(mModel.selectedTrace());
        const double y =
            GraphLayout::yOf(value, selectedBand(), old.minimum, old.maximum) - pixelsY;
        const int place = parts.bandAt(static_cast<int>(
            std::floor(std::clamp(y, 1.0 * parts.plot().top(), 1.0 * parts.plot().bottom()))));
        if (place >= 0) {
            mModel.setSelectedTrace(mScene.shown[static_cast<std::size_t>(place)]);
        }
        const VELIX::GraphYScale& scale = mModel.scaleOf(mModel.selectedTrace());
        value = GraphLayout::valueAt(y, selectedBand(), scale.minimum, scale.maximum);
    }
    const double secondsPerPixel = (mModel.xmax() - mModel.xmin()) / parts.plot().width();
    mModel.setCursorPosition(mModel.cursorTime() + pixelsX * secondsPerPixel);
    mModel.setCursorValue(value);
    mPointer.cursorActive = true;
    mCursorTimer.start(kCursorActiveMs);
    update();
    emit signalCursor(static_cast<float>(mModel.cursorTime()), mModel.cursorValue());
}

void WidgetGraphBase::keyReleaseEvent(QKeyEvent* event)
{
    mHeldKeys &= ~Qt::KeyboardModifiers(modifierOf(event->key()));
    QOpenGLWidget::keyReleaseEvent(event);
}

void WidgetGraphBase::focusInEvent(QFocusEvent* event)
{
    mPointer.focused = true;
    QOpenGLWidget::focusInEvent(event); // updates
}

void WidgetGraphBase::focusOutEvent(QFocusEvent* event)
{
    mPointer.focused = false;
    mHeldKeys = Qt::NoModifier; // their release goes elsewhere
    QOpenGLWidget::focusOutEvent(event);
}
