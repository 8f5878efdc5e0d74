#include "tests/views/graph/widget/GraphFixture.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <gtest/gtest.h>

#include <limits>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

const QColor kRed(255, 0, 0); // of the first trace

TEST(WidgetGraphPaintingTest, TracesAreDrawnInTheirBands)
{
    GraphFixture<> fixture;
    fixture.graph.activateGrid(false);
    fixture.graph.activateCursor(false);
    const QImage image = fixture.paint();
    const QRect band = fixture.parts().band(0);
    const QRect next = fixture.parts().band(1);
    EXPECT_GT(pixelsLike(image, band, kRed), band.width() / 2);
    EXPECT_EQ(pixelsLike(image, next, kRed), 0);
    EXPECT_GT(pixelsLike(image, next, QColor(0, 178, 0)), band.width() / 2);
    // The ramp begins at the bottom left and ends at the top right.
    const QRect lowerRight(band.left() + band.width() * 3 / 4, band.center().y() + 5,
                           band.width() / 4, band.height() / 2 - 6);
    EXPECT_EQ(pixelsLike(image, lowerRight, kRed), 0);
}

TEST(WidgetGraphPaintingTest, NothingIsDrawnOutsideThePlot)
{
    GraphFixture<> fixture(1, false);
    fixture.graph.setAutoScaleY(false);
    fixture.graph.setYRange(40.0, 60.0); // most of the ramp is beyond
    fixture.graph.setMarker(-500.0, 5000.0);
    fixture.graph.setCursorPosition(7000.0);
    fixture.graph.activateSamples(0, true);
    const QImage image = fixture.paint();
    const GraphLayout& parts = fixture.parts();
    EXPECT_GT(pixelsLike(image, parts.plot(), kRed), 0);
    for (const QRect& outside :
         {parts.timeAxis(), parts.valueAxis(), QRect(0, 0, image.width(), parts.plot().top())}) {
        EXPECT_EQ(pixelsLike(image, outside, kRed), 0);
    }
}

TEST(WidgetGraphPaintingTest, TextsSurviveASnapshot)
{
    GraphFixture<> fixture;
    const QImage image = fixture.paint();
    EXPECT_GT(pixelsLike(image, fixture.parts().timeAxis(), Qt::black), 50);
    EXPECT_GT(pixelsLike(image, fixture.parts().valueAxis(), Qt::black), 20);
    EXPECT_GT(pixelsLike(image, fixture.parts().legend(), Qt::black), 50);
    fixture.graph.activateLegend(false);
    EXPECT_TRUE(fixture.parts().legend().isEmpty());

    GraphFixture<> empty(0); // says why
    EXPECT_GT(pixelsLike(empty.paint(), empty.plot(), empty.graph.look().plotMutedText(), 30), 100);
}

TEST(WidgetGraphPaintingTest, ColorsAreTheUsers)
{
    GraphFixture<> fixture;
    fixture.graph.setBackColor(0.0F, 0.0F, 0.4F);
    fixture.graph.setLabelBackColor(1.0F, 1.0F, 0.8F);
    fixture.graph.setGridColor(0.0F, 1.0F, 0.0F);
    const QImage image = fixture.paint();
    const QRect plot = fixture.plot();
    EXPECT_GT(pixelsLike(image, plot, QColor(0, 0, 102), 3), plot.width() * plot.height() / 2);
    EXPECT_EQ(image.pixelColor(1, 1), QColor(255, 255, 204));
    const QColor major = fixture.graph.look().majorGrid();
    EXPECT_GT(pixelsLike(image, plot, major, 3), plot.height());
    fixture.graph.activateGrid(false);
    EXPECT_LT(pixelsLike(fixture.paint(), plot, major, 3), plot.height() / 2);

    const QRect edge(plot.left() - 1, plot.top(), 1, plot.height());
    for (const bool focus : {true, false}) {
        focus ? fixture.graph.setFocus() : fixture.graph.clearFocus();
        EXPECT_EQ(pixelsLike(fixture.paint(), edge, fixture.graph.look().focus()) > 0, focus);
    }
}

TEST(WidgetGraphPaintingTest, SlopesAreSmooth)
{
    GraphFixture<> fixture(1, false);
    fixture.graph.activateGrid(false);
    fixture.graph.activateCursor(false);
    const QRect plot = fixture.plot();
    const QRect area = plot.adjusted(plot.width() / 3, 0, -plot.width() / 3, 0);
    fixture.paint();
    const QImage image = fixture.paint(); // the painter of the first one's texts left its state
    EXPECT_GT(pixelsLike(image, area, QColor(125, 0, 0), 95), area.width() / 2);
}

TEST(WidgetGraphPaintingTest, AnIdleGraphDoesNotRepaint)
{
    GraphFixture<> fixture;
    const auto settle = [&fixture] { // the recomputations that follow a change of size or range
        while (fixture.model().recalc().running()) {
            QTest::qWait(20);
        }
        QTest::qWait(60);
    };
    settle();
    const unsigned int before = fixture.graph.paintCount();
    QTest::qWait(150);
    EXPECT_EQ(fixture.graph.paintCount(), before);

    // New samples: only when the traces moved on by 0.7 pixels, here after 0.1 s.
    fixture.graph.setVisibleRange(0.0, 0.14 * fixture.plot().width());
    fixture.paint();
    settle();
    const unsigned int still = fixture.graph.paintCount();
    fixture.graph.setTime(100.5);
    fixture.graph.putValue(0, 1.0, false);
    EXPECT_EQ(fixture.graph.paintCount(), still);
    QTest::qWait(300);
    EXPECT_EQ(fixture.graph.paintCount(), still + 1);
}

TEST(WidgetGraphPaintingTest, AnySizeIsSafe)
{
    GraphFixture<> fixture(30);
    for (const QSize& size : {QSize(1, 1), QSize(3, 400), QSize(400, 3), QSize(60, 60),
                              QSize(250, 120), QSize(640, 480)}) {
        fixture.graph.resize(size);
        QApplication::processEvents();
        fixture.paint();
        QTest::mouseClick(&fixture.graph, Qt::LeftButton, Qt::NoModifier, QPoint(0, 0));
        QTest::keyClick(&fixture.graph, Qt::Key_Up);
        fixture.wheel(QPoint(0, 0), 120);
    }
    fixture.graph.setVisibleRange(0.0, 100.0);
    EXPECT_GT(pixelsLike(fixture.paint(), fixture.plot(), kRed), 0);
}

TEST(WidgetGraphPaintingTest, OddSamplesAreSafe)
{
    const double inf = std::numeric_limits<double>::infinity();
    GraphFixture<> fixture(6);
    fixture.graph.clear();
    for (const double time : {50.0, 50.0, 40.0, 60.0, 60.0, 61.0, 20.0}) {
        fixture.graph.setTime(time);
        for (const double value : {0.0, std::nan(""), inf, -inf, 1e300, -1e300, 1.0}) {
            fixture.graph.putValue(0, value, false);
            fixture.graph.putValue(1, value, false);
        }
    }
    fixture.graph.setTime(70.0);
    fixture.graph.putValue(4, std::nan(""), false); // nothing but a gap; the sixth has no sample
    fixture.graph.addTopMarker(2, 55.0);
    fixture.graph.addTopMarker(99, 56.0);
    for (const auto mode : {GraphModel::DisplaySingle, GraphModel::DisplaySplit}) {
        fixture.graph.setDisplayMode(mode);
        fixture.paint();
        fixture.move(fixture.at(0.5));
        fixture.paint();
    }
}

// --- the two pens

template <class Widget>
QImage busyFrame()
{
    GraphFixture<Widget> fixture;
    fixture.graph.setCursorPosition(30.0);
    fixture.graph.setMarker(20.0, 60.0);
    fixture.graph.activateSamples(1, true);
    QImage image = fixture.paint();
    fixture.graph.makeCurrent();
    EXPECT_EQ(fixture.graph.context()->functions()->glGetError(), unsigned{GL_NO_ERROR});
    EXPECT_EQ(fixture.graph.context()->functions()->glIsEnabled(GL_SCISSOR_TEST), GL_FALSE);
    fixture.graph.doneCurrent();
    return image;
}

TEST(GraphPenTest, BothDrawTheSameFrame)
{
    const QImage a = busyFrame<WidgetGraph>();
    const QImage b = busyFrame<WidgetGraphES>();
    ASSERT_EQ(a.size(), b.size());
    int different = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            different += pixelsLike(a, QRect(x, y, 1, 1), b.pixelColor(x, y)) == 0 ? 1 : 0;
        }
    }
    EXPECT_LT(different, 50);
}

TEST(GraphPenTest, AMoveToAnotherWindowKeepsTheFrame)
{
    QWidget window;
    window.resize(700, 500);
    GraphFixture<WidgetGraphES> fixture;
    window.show();
    fixture.graph.setParent(&window); // a new window, and so new buffers
    fixture.graph.show();
    QApplication::processEvents();
    EXPECT_GT(pixelsLike(fixture.paint(), fixture.plot(), kRed), 50);
    fixture.graph.setParent(nullptr);
}

} // namespace
