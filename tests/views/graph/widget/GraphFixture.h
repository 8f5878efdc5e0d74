#pragma once

#include "views/graph/widget/WidgetGraph.h"
#include "views/graph/widget/WidgetGraphES.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <string>

namespace VELIX::Test {

/// A shown graph of 640 x 480 with the range 0..100 s. Each trace is a ramp from 0 to 100 times its
/// number plus one, with a sample each second.
template <class Widget = WidgetGraph>
struct GraphFixture
{
    explicit GraphFixture(unsigned int traces = 3, bool split = true)
    {
        graph.setMaxParameters(traces);
        for (unsigned int i = 0; i < traces; ++i) {
            graph.setActive(i, true);
            graph.setParameterName(i, "Trace " + std::to_string(i));
        }
        for (int second = 0; second <= 100; ++second) {
            graph.setTime(second);
            for (unsigned int i = 0; i < traces; ++i) {
                graph.putValue(i, second * (i + 1.0), false);
            }
        }
        graph.setDisplayMode(split ? GraphModel::DisplaySplit : GraphModel::DisplaySingle);
        graph.setVisibleRange(0.0, 100.0);
        graph.resize(640, 480);
        graph.show();
        QApplication::setActiveWindow(&graph);
        (void)QTest::qWaitForWindowExposed(&graph);
        paint();
    }

    QImage paint() { return graph.grab().toImage(); }
    const GraphModel& model() const { return graph.model(); }
    const GraphLayout& parts() { return graph.layoutOfParts(); }
    QRect plot() { return parts().plot(); }
    /// A point of the plot, as parts of its width from the left and of its height from the bottom.
    QPoint at(double x, double y = 0.5)
    {
        const QRect area = plot();
        return {area.left() + qRound(x * area.width()),
                area.top() + area.height() - qRound(y * area.height())};
    }
    /// The time under a point.
    double time(const QPoint& point)
    {
        return parts().timeAt(point.x(), model().xmin(), model().xmax());
    }
    void move(const QPoint& to, Qt::MouseButtons buttons = Qt::NoButton)
    {
        QMouseEvent event(QEvent::MouseMove, to, graph.mapToGlobal(to), Qt::NoButton, buttons,
                          Qt::NoModifier);
        QApplication::sendEvent(&graph, &event);
    }
    bool wheel(const QPoint& at, int delta, Qt::KeyboardModifiers held = Qt::NoModifier,
               Qt::ScrollPhase phase = Qt::NoScrollPhase)
    {
        QWheelEvent event(at, graph.mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton, held,
                          phase, false);
        QApplication::sendEvent(&graph, &event);
        return event.isAccepted();
    }

    Widget graph;
};

/// Pixels of an area that are nearly of a colour.
inline int pixelsLike(const QImage& image, const QRect& area, const QColor& color,
                      int tolerance = 40)
{
    int count = 0;
    const QRect inside = area.intersected(image.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            const bool like = std::abs(pixel.red() - color.red()) <= tolerance &&
                              std::abs(pixel.green() - color.green()) <= tolerance &&
                              std::abs(pixel.blue() - color.blue()) <= tolerance;
            count += like ? 1 : 0;
        }
    }
    return count;
}

} // namespace VELIX::Test
