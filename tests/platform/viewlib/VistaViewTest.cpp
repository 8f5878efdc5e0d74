#include "platform/viewlib/VistaView.h"

#include "platform/tessel/opengl/Gl.h"

#include <QColor>
#include <QImage>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace Vista2D {
namespace {

constexpr int kSize = 100;

const QColor kBackground(0x0b, 0x0f, 0x14);
const QColor kWarning(0xff, 0xb4, 0x2e);
const QColor kLimit(0xff, 0x4f, 0x44);
const QColor kWhite(0xff, 0xff, 0xff);

bool isNear(const QColor& a, const QColor& b)
{
    return std::abs(a.red() - b.red()) < 12 && std::abs(a.green() - b.green()) < 12 &&
           std::abs(a.blue() - b.blue()) < 12;
}

/// A target of 100 x 100 pixels; the view of as many units fills it at scale 1.
class VistaViewTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        mSurface.create();
        ASSERT_TRUE(mContext.create());
        ASSERT_TRUE(mContext.makeCurrent(&mSurface));
        mTarget = std::make_unique<QOpenGLFramebufferObject>(
            kSize, kSize, QOpenGLFramebufferObject::CombinedDepthStencil);
        mTarget->bind();
        mView.startView(1);
        mView.setBackgroundMode(0);
    }
    void TearDown() override
    {
        EXPECT_EQ(glGetError(), 0U);
        mTarget.reset();
        mContext.doneCurrent();
    }

    void load(const std::string& elements)
    {
        mView.loadText("view size=100,100\ncolors normal=#ffffff\n" + elements);
        ASSERT_TRUE(mView.errors().empty()) << mView.errors().front().message;
    }
    QImage draw(double x = 0.0, double y = 0.0, double scale = 1.0)
    {
        glViewport(0, 0, kSize, kSize);
        glClearColor(0.0F, 0.0F, 1.0F, 1.0F);
        glClear(GL_COLOR_BUFFER_BIT);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(0.0, kSize, kSize, 0.0, -1.0, 1.0);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glTranslated(x, y, 0.0);
        glScaled(scale, scale, 1.0);
        mView.draw(1);
        return mTarget->toImage().convertToFormat(QImage::Format_RGB32);
    }
    ::testing::AssertionResult shows(const QColor& color, int x, int y)
    {
        const QColor found = draw().pixelColor(x, y);
        return isNear(found, color) ? ::testing::AssertionSuccess()
                                    : ::testing::AssertionFailure()
                                          << found.name().toStdString() << " at " << x << ", " << y;
    }

    QOffscreenSurface mSurface;
    QOpenGLContext mContext;
    std::unique_ptr<QOpenGLFramebufferObject> mTarget;
    VistaView mView;
};

TEST_F(VistaViewTest, NeedlesPointToTheValueInTheColourOfItsState)
{
    load("gauge var=N at=50,50 radius=48 width=2 needle=10,40 needlewidth=8 ticktext=0 {\n"
         "scale from=0 to=100\n}");
    const QPoint up(50, 25);
    const QPoint right(75, 50);
    const QPoint lowerLeft(32, 68);
    EXPECT_TRUE(shows(kBackground, up.x(), up.y())); // no value, no needle
    mView.setVar("N", 50.0);
    EXPECT_TRUE(shows(kWhite, up.x(), up.y()));
    EXPECT_TRUE(shows(kBackground, right.x(), right.y()));
    mView.setVar("N", 100.0 * 225.0 / 270.0);
    mView.setVar("N_STATE", 1L);
    EXPECT_TRUE(shows(kWarning, right.x(), right.y()));
    EXPECT_TRUE(shows(kBackground, up.x(), up.y()));
    mView.setVar("N", -1e9); // is shown at the end of the scale
    mView.setVar("N_STATE", 2L);
    EXPECT_TRUE(shows(kLimit, lowerLeft.x(), lowerLeft.y()));
    mView.setVar("N", std::nan(""));
    EXPECT_TRUE(shows(kBackground, lowerLeft.x(), lowerLeft.y()));
}

TEST_F(VistaViewTest, BarsFillFromTheirStart)
{
    load("bar var=A at=10,10 size=80,10 ticks=none {\nscale from=0 to=8\n}\n"
         "bar var=B at=10,40 size=10,50 direction=up ticks=none {\nscale from=0 to=8\n}");
    mView.setVar("A", 4.0);
    mView.setVar("B", 2.0);
    EXPECT_TRUE(shows(kWhite, 45, 15));
    EXPECT_FALSE(shows(kWhite, 55, 15));
    EXPECT_TRUE(shows(kWhite, 15, 85));
    EXPECT_FALSE(shows(kWhite, 15, 70));
}

TEST_F(VistaViewTest, ConditionsShowHideAndLight)
{
    load("rectangle at=0,0 size=20,20 fill=#00ff00 if=\"UNIT = 1\"\n"
         "group at=40,0 if=\"VARIANT = 2\" {\nrectangle at=0,0 size=20,20 fill=#ff0000\n}\n"
         "lamp at=0,50 size=40,40 {\ncase if=\"L = 2\" color=limit\ncase if=\"L >= 1\" "
         "color=warning\n}\n"
         "lamp var=OIL at=50,50 size=40,40");
    EXPECT_TRUE(shows(kBackground, 10, 10));
    mView.setVar("UNIT", 1L);
    EXPECT_TRUE(shows(QColor(0, 255, 0), 10, 10));
    EXPECT_TRUE(shows(kBackground, 50, 10));
    mView.setVar("VARIANT", 2L);
    EXPECT_TRUE(shows(QColor(255, 0, 0), 50, 10));
    EXPECT_TRUE(shows(kBackground, 20, 60));
    mView.setVar("L", 1L);
    EXPECT_TRUE(shows(kWarning, 20, 60));
    mView.setVar("L", 2L);
    EXPECT_TRUE(shows(kLimit, 20, 60));
    EXPECT_TRUE(shows(kBackground, 70, 60));
    mView.setVar("OIL_STATE", 2L);
    EXPECT_TRUE(shows(kLimit, 70, 60));
}

TEST_F(VistaViewTest, WhatTheRecordLacksIsDrawnAsWithoutValue)
{
    load("gauge var=N at=50,25 radius=24 needle=2,20 {\nscale from=0 to=9\nnumber at=10,48\n}\n"
         "bar var=N at=0,60 size=100,10 ticks=none {\nscale from=9 to=0\n}\n"
         "value var=N at=10,98 {\ncase if=\"N = 0\" text=OFF\n}\nlamp var=N at=50,80 size=9,9");
    const QImage blank = draw();
    mView.setVar("N", 0.0);
    mView.setVar("N_STATE", 2L);
    EXPECT_NE(draw(), blank);
    mView.setVar("N_MISSING", 1L);
    EXPECT_EQ(draw(), blank);
    mView.setVar("N_MISSING", 0L);
    EXPECT_NE(draw(), blank);
}

TEST_F(VistaViewTest, FillsTheRoomThatTheMatricesGiveIt)
{
    load("rectangle at=0,0 size=50,50 fill=#00ff00");
    const QImage half = draw(20.0, 40.0, 0.5);
    EXPECT_TRUE(isNear(half.pixelColor(19, 41), Qt::blue)); // what was there before
    EXPECT_TRUE(isNear(half.pixelColor(21, 39), Qt::blue));
    EXPECT_TRUE(isNear(half.pixelColor(21, 41), QColor(0, 255, 0)));
    EXPECT_TRUE(isNear(half.pixelColor(44, 64), QColor(0, 255, 0)));
    EXPECT_TRUE(isNear(half.pixelColor(46, 66), kBackground));
    EXPECT_TRUE(isNear(half.pixelColor(71, 91), Qt::blue));
    // Edges are sharp at any scale, since the image is made again for it.
    const QImage large = draw(0.0, 0.0, 1.62);
    EXPECT_TRUE(isNear(large.pixelColor(80, 5), QColor(0, 255, 0)));
    EXPECT_TRUE(isNear(large.pixelColor(81, 5), kBackground));
    for (const double scale : {0.0, -1.0, 1e9, HUGE_VAL, std::nan("")}) {
        draw(0.0, 0.0, scale); // nothing to be seen, but no harm
    }

    mView.setBackgroundMode(1);
    EXPECT_TRUE(shows(Qt::blue, 90, 90));
    EXPECT_TRUE(shows(QColor(0, 255, 0), 25, 25));
    mView.startView(0);
    EXPECT_TRUE(shows(Qt::blue, 25, 25));
}

TEST_F(VistaViewTest, TakesTheLayoutThatIsLargerInItsRoom)
{
    mView.loadText(
        "view size=100,50 tall=50,100 low=100,10\n"
        "group at=0,0 tall=20,60 low=50,0 {\nrectangle at=0,0 size=10,10 fill=#00ff00\n}\n"
        "rectangle at=20,0 size=10,10 fill=#ff0000 if=\"TALL = 1\"");
    ASSERT_TRUE(mView.errors().empty());
    mView.setRoom(300, 200);
    EXPECT_EQ(mView.width(), 100.0);
    EXPECT_TRUE(shows(QColor(0, 255, 0), 5, 5));
    EXPECT_TRUE(shows(kBackground, 25, 5));
    mView.setRoom(200, 300);
    EXPECT_EQ(mView.width(), 50.0);
    EXPECT_EQ(mView.height(), 100.0);
    EXPECT_TRUE(shows(QColor(0, 255, 0), 25, 65));
    EXPECT_TRUE(shows(QColor(255, 0, 0), 25, 5));
    mView.setRoom(300, 60);
    EXPECT_EQ(mView.height(), 10.0);
    EXPECT_TRUE(shows(QColor(0, 255, 0), 55, 5));
    EXPECT_TRUE(shows(kBackground, 25, 5));
    mView.loadText("view size=100,50");
    mView.setRoom(200, 300);
    EXPECT_EQ(mView.width(), 100.0);
}

TEST_F(VistaViewTest, ChangesAreReportedUntilDrawn)
{
    load("value var=N at=10,50");
    EXPECT_TRUE(mView.changed());
    draw();
    EXPECT_FALSE(mView.changed());
    mView.setVar("N", 1.0);
    EXPECT_TRUE(mView.changed());
    draw();
    mView.setVar("N", 1.0);
    EXPECT_FALSE(mView.changed());
    mView.setBackgroundMode(1);
    EXPECT_TRUE(mView.changed());
}

TEST_F(VistaViewTest, LeavesTheStateOfTheContext)
{
    load("label at=10,50 text=a");
    glColor3d(1.0, 0.0, 0.0);
    glDisable(GL_BLEND);
    glEnable(GL_SCISSOR_TEST);
    glScissor(0, 0, kSize, kSize);
    draw();
    GLdouble matrix[16];
    GLint viewport[4];
    GLint program = -1;
    glGetDoublev(GL_PROJECTION_MATRIX, matrix);
    glGetIntegerv(GL_VIEWPORT, viewport);
    glGetIntegerv(GL_CURRENT_PROGRAM, &program);
    EXPECT_FLOAT_EQ(static_cast<float>(matrix[0]), 2.0F / kSize);
    EXPECT_EQ(viewport[2], kSize);
    EXPECT_EQ(program, 0);
    EXPECT_FALSE(glIsEnabled(GL_BLEND));
    EXPECT_TRUE(glIsEnabled(GL_SCISSOR_TEST));
    glDisable(GL_SCISSOR_TEST);
}

} // namespace
} // namespace Vista2D
