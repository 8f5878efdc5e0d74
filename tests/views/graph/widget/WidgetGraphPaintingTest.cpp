#include "tests/views/graph/widget/GraphFixture.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <gtest/gtest.h>

#include <limits>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

const QColor kRed(255, 0, 0); // of the first trace

template <class Widget>
class WidgetGraphPainting : public ::testing::Test
{};
using Widgets = ::testing::Types<WidgetGraph, WidgetGraphES>;
TYPED_TEST_SUITE(WidgetGraphPainting, Widgets);

TYPED_TEST(WidgetGraphPainting, TracesAreDrawnInTheirBands)
{
    GraphFixture<TypeParam> fixture(3);
    fixture.graph.activateGrid(false);
    fixture.graph.activateCursor(false);
    const QImage image = fixture.paint();
    const GraphLayout parts = fixture.graph.layoutOfParts();
    EXPECT_GT(pixelsLike(image, parts.band(0), kRed), parts.plot().width() / 2);
    EXPECT_EQ(pixelsLike(image, parts.band(1), kRed), 0);
    EXPECT_GT(pixelsLike(image, parts.band(1), QColor(0, 178, 0)), parts.plot().width() / 2);
    // The ramp of the first trace begins at the bottom left and ends at the top right.
    const QRect band = parts.band(0);
    const QRect lowerRight(band.left() + band.width() * 3 / 4, band.center().y() + 5,
                           band.width() / 4, band.height() / 2 - 6);
    EXPECT_EQ(pixelsLike(image, lowerRight, kRed), 0);
}

TYPED_TEST(WidgetGraphPainting, NothingIsDrawnOutsideThePlot)
{
    GraphFixture<TypeParam> fixture(1, false);
    fixture.graph.setAutoScaleY(false);
    fixture.graph.setYRange(40.0, 60.0); // most of the ramp lies beyond
    fixture.graph.setMarker(-500.0, 5000.0);
    fixture.graph.setCursorPosition(7000.0);
    fixture.graph.activateSamples(0, true);
    const QImage image = fixture.paint();
    const GraphLayout parts = fixture.graph.layoutOfParts();
    EXPECT_GT(pixelsLike(image, parts.plot(), kRed), 0);
    EXPECT_EQ(pixelsLike(image, parts.timeAxis(), kRed), 0);
    EXPECT_EQ(pixelsLike(image, parts.valueAxis(), kRed), 0);
    EXPECT_EQ(pixelsLike(image, QRect(0, 0, image.width(), parts.plot().top()), kRed), 0);
}

TYPED_TEST(WidgetGraphPainting, TextsSurviveASnapshot)
{
    GraphFixture<TypeParam> fixture;
    const QImage image = fixture.paint();
    const GraphLayout parts = fixture.graph.layoutOfParts();
    EXPECT_GT(pixelsLike(image, parts.timeAxis(), Qt::black), 50);
    EXPECT_GT(pixelsLike(image, parts.valueAxis(), Qt::black), 20);
    EXPECT_GT(pixelsLike(image, parts.legend(), Qt::black), 50);
    fixture.graph.activateLegend(false);
    EXPECT_TRUE(fixture.graph.layoutOfParts().legend().isEmpty());

    GraphFixture<TypeParam> empty(0); // says why
    EXPECT_GT(pixelsLike(empty.paint(), empty.plot(), empty.graph.look().plotMutedText(), 30), 100);
}

TYPED_TEST(WidgetGraphPainting, ColorsAreTheUsers)
{
    GraphFixture<TypeParam> fixture;
    fixture.graph.setBackColor(0.0F, 0.0F, 0.4F);
    fixture.graph.setLabelBackColor(1.0F, 1.0F, 0.8F);
    fixture.graph.setGridColor(0.0F, 1.0F, 0.0F);
    fixture.graph.setParameterColor(0, 1.0F, 1.0F, 1.0F);
    const QImage image = fixture.paint();
    const QRect plot = fixture.plot();
    EXPECT_GT(pixelsLike(image, plot, QColor(0, 0, 102), 3), plot.width() * plot.height() / 2);
    EXPECT_EQ(image.pixelColor(1, 1), QColor(255, 255, 204));
    const QColor major = fixture.graph.look().majorGrid();
    EXPECT_GT(pixelsLike(image, plot, major, 3), plot.height());
    fixture.graph.activateGrid(false);
    EXPECT_LT(pixelsLike(fixture.paint(), plot, major, 3), plot.height() / 2);
}

TYPED_TEST(WidgetGraphPainting, TheFrameOfThePlotShowsTheFocus)
{
    GraphFixture<TypeParam> fixture;
    const QRect edge(fixture.plot().left() - 1, fixture.plot().top(), 1, fixture.plot().height());
    const QColor color = fixture.graph.look().focus();
    fixture.graph.setFocus();
    EXPECT_GT(pixelsLike(fixture.paint(), edge, color), edge.height() / 2);
    fixture.graph.clearFocus();
    EXPECT_EQ(pixelsLike(fixture.paint(), edge, color), 0);
}

TYPED_TEST(WidgetGraphPainting, TheGraphicsSystemHasNoComplaints)
{
    GraphFixture<TypeParam> fixture(8);
    fixture.graph.activateSamples(0, true);
    fixture.paint();
    fixture.graph.makeCurrent();
    EXPECT_EQ(fixture.graph.context()->functions()->glGetError(), unsigned{GL_NO_ERROR});
    EXPECT_EQ(fixture.graph.context()->functions()->glIsEnabled(GL_SCISSOR_TEST), GL_FALSE);
    fixture.graph.doneCurrent();
}

TYPED_TEST(WidgetGraphPainting, SlopesAreSmooth)
{
    GraphFixture<TypeParam> fixture(1, false);
    fixture.graph.activateGrid(false);
    fixture.graph.activateCursor(false);
    const QRect plot = fixture.plot();
    const QRect area = plot.adjusted(plot.width() / 3, 0, -plot.width() / 3, 0);
    fixture.paint();
    const QImage image = fixture.paint(); // the painter of the first one's texts left its state
    const int between = pixelsLike(image, area, QColor(125, 0, 0), 95);
    EXPECT_GT(between, area.width() / 2);
}

TYPED_TEST(WidgetGraphPainting, AnIdleGraphDoesNotRepaint)
{
    GraphFixture<TypeParam> fixture;
    fixture.settle();
    const unsigned int before = fixture.graph.paintCount();
    QTest::qWait(150);
    EXPECT_EQ(fixture.graph.paintCount(), before);

    // New samples: only when the traces moved on by 0.7 pixels, here after 0.1 s.
    fixture.graph.setVisibleRange(0.0, 0.14 * fixture.plot().width());
    fixture.paint();
    fixture.settle();
    const unsigned int still = fixture.graph.paintCount();
    fixture.graph.setTime(100.5);
    fixture.graph.putValue(0, 1.0, false);
    EXPECT_EQ(fixture.graph.paintCount(), still);
    QTest::qWait(300);
    EXPECT_EQ(fixture.graph.paintCount(), still + 1);
}

TYPED_TEST(WidgetGraphPainting, AnySizeIsSafe)
{
    GraphFixture<TypeParam> fixture(30);
    for (const QSize& size : {QSize(1, 1), QSize(3, 400), QSize(400, 3), QSize(60, 60),
                              QSize(100, 90), QSize(250, 120), QSize(640, 480)}) {
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

TYPED_TEST(WidgetGraphPainting, OddSamplesAreSafe)
{
    const double inf = std::numeric_limits<double>::infinity();
    GraphFixture<TypeParam> fixture(6);
    fixture.graph.clear();
    const double values[] = {0.0, std::nan(""), inf, -inf, 1e300, -1e300, 1.0};
    for (const double time : {50.0, 50.0, 40.0, 60.0, 60.0, 61.0, 20.0}) {
        fixture.graph.setTime(time);
        for (unsigned int i = 0; i < 4; ++i) {
            for (const double value : values) {
                fixture.graph.putValue(i, value, false);
            }
        }
    }
    fixture.graph.setTime(70.0);
    fixture.graph.putValue(4, std::nan(""), false); // nothing but a gap; the sixth has no sample
    fixture.graph.addTopMarker(2, 55.0);
    fixture.graph.addTopMarker(99, 56.0);
    for (const auto mode : {GraphModel::DisplaySingle, GraphModel::DisplaySplit}) {
        fixture.graph.setDisplayMode(mode);
        fixture.paint();
        fixture.move(fixture.at(0.5, 0.5));
        fixture.paint();
    }
}

TEST(WidgetGraphVariants, BothDrawTheSamePicture)
{
    GraphFixture<WidgetGraph> fixed;
    GraphFixture<WidgetGraphES> buffered;
    for (WidgetGraphBase* graph : {static_cast<WidgetGraphBase*>(&fixed.graph),
                                   static_cast<WidgetGraphBase*>(&buffered.graph)}) {
        graph->setCursorPosition(30.0);
        graph->setMarker(20.0, 60.0);
        graph->activateSamples(1, true);
    }
    const QImage a = fixed.paint();
    const QImage b = buffered.paint();
    ASSERT_EQ(a.size(), b.size());
    int different = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            different += pixelsLike(a, QRect(x, y, 1, 1), b.pixelColor(x, y)) == 0 ? 1 : 0;
        }
    }
    EXPECT_LT(different, 50);
}

TEST(WidgetGraphVariants, AMoveToAnotherWindowKeepsThePicture)
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
