#include "platform/tessel/LineStripsSimple.h"
#include "platform/tessel/Lines.h"
#include "platform/tessel/MatrixSet.h"

#include <QImage>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>

#include <gtest/gtest.h>

#include <memory>

using namespace Tessel::OpenGL;

namespace {

constexpr int kSize = 32;

/// A context, and a black picture of 32 x 32 pixels to draw into; one unit is one pixel, y upwards.
class OpenGlTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        mSurface.create();
        ASSERT_TRUE(mContext.create());
        ASSERT_TRUE(mContext.makeCurrent(&mSurface));
        mPicture = std::make_unique<QOpenGLFramebufferObject>(kSize, kSize);
        mPicture->bind();
        mContext.functions()->glViewport(0, 0, kSize, kSize);
        clear();
        ASSERT_TRUE(mMatrices.setOrtho(0.0, kSize, 0.0, kSize));
    }

    void TearDown() override
    {
        mProgram.release();
        mPicture.reset();
        mContext.doneCurrent();
    }

    void clear()
    {
        mContext.functions()->glClearColor(0.0F, 0.0F, 0.0F, 1.0F);
        mContext.functions()->glClear(GL_COLOR_BUFFER_BIT);
    }

    /// Number of pixels in an area (from the lower left) that are not black.
    int lit(const QRect& area) const
    {
        const QImage image = mPicture->toImage().convertToFormat(QImage::Format_RGB32);
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                count += image.pixelColor(x, kSize - 1 - y) != QColor(Qt::black) ? 1 : 0;
            }
        }
        return count;
    }
    int lit() const { return lit(QRect(0, 0, kSize, kSize)); }
    QColor at(int x, int y) const { return mPicture->toImage().pixelColor(x, kSize - 1 - y); }

    QOffscreenSurface mSurface;
    QOpenGLContext mContext;
    std::unique_ptr<QOpenGLFramebufferObject> mPicture;
    LineProgram mProgram;
    MatrixSet mMatrices;
};

TEST_F(OpenGlTest, AStripIsDrawnInItsColourFromVertexToVertex)
{
    LineStripsSimple strips;
    strips.setColor({1.0F, 0.0F, 0.0F, 1.0F});
    strips.addVertex(4.5F, 4.5F);
    strips.addVertex(24.5F, 4.5F);
    strips.addVertex(24.5F, 20.5F);
    strips.render(mProgram, mMatrices);
    EXPECT_EQ(at(10, 4), QColor(255, 0, 0));
    EXPECT_EQ(at(24, 12), QColor(255, 0, 0));
    EXPECT_EQ(lit(QRect(5, 5, 18, 14)), 0) << "nothing joins the ends";
    EXPECT_NEAR(lit(), 20 + 16, 2);
}

TEST_F(OpenGlTest, StripsAreNotConnected)
{
    LineStripsSimple strips;
    strips.addVertex(2.5F, 2.5F);
    strips.addVertex(10.5F, 2.5F);
    strips.beginStrip();
    strips.beginStrip(); // an empty strip is none
    strips.addVertex(20.5F, 2.5F);
    strips.addVertex(28.5F, 2.5F);
    strips.render(mProgram, mMatrices);
    EXPECT_EQ(lit(QRect(12, 0, 7, kSize)), 0);
    EXPECT_NEAR(lit(), 16, 2);
}

TEST_F(OpenGlTest, ALoneVertexIsAPointAndPointsMarkEveryVertex)
{
    LineStripsSimple strips;
    strips.addVertex(16.5F, 16.5F);
    strips.render(mProgram, mMatrices);
    EXPECT_EQ(lit(), 1);
    EXPECT_EQ(at(16, 16), QColor(Qt::white));

    clear();
    strips.setPointSize(5.0F);
    strips.render(mProgram, mMatrices);
    EXPECT_EQ(lit(), 25);
}

TEST_F(OpenGlTest, WidthIsInPixels)
{
    LineStripsSimple strips;
    strips.setWidth(3.0F);
    strips.addVertex(4.0F, 10.5F);
    strips.addVertex(14.0F, 10.5F);
    strips.render(mProgram, mMatrices);
    EXPECT_NEAR(lit(), 30, 3);
}

TEST_F(OpenGlTest, LinesAreSeparateAndFollowTheMatrices)
{
    Lines lines;
    lines.addLine(0.75F, 0.5F, 0.75F, 8.5F);
    lines.addLine(4.75F, 0.5F, 4.75F, 8.5F);
    mMatrices.translate(10.0, 0.0);
    mMatrices.scale(2.0, 1.0);
    lines.render(mProgram, mMatrices);
    EXPECT_NEAR(lit(QRect(11, 0, 1, kSize)), 8, 1);
    EXPECT_NEAR(lit(QRect(19, 0, 1, kSize)), 8, 1);
    EXPECT_NEAR(lit(), 16, 2);
}

TEST_F(OpenGlTest, ClearedPrimitivesDrawWhatIsAddedNext)
{
    Lines lines;
    lines.addLine(0.5F, 0.5F, 30.5F, 0.5F);
    lines.render(mProgram, mMatrices);
    lines.clear();
    clear();
    lines.render(mProgram, mMatrices);
    EXPECT_EQ(lit(), 0);

    lines.addLine(0.5F, 9.5F, 10.5F, 9.5F);
    lines.render(mProgram, mMatrices);
    EXPECT_NEAR(lit(QRect(0, 9, kSize, 1)), 10, 1);
    EXPECT_NEAR(lit(), 10, 1);
}

TEST_F(OpenGlTest, ReleasedBuffersAreMadeAgain)
{
    LineStripsSimple strips;
    strips.addVertex(4.5F, 4.5F);
    strips.addVertex(24.5F, 4.5F);
    strips.render(mProgram, mMatrices);
    const int before = lit();
    ASSERT_GT(before, 0);
    strips.release();
    mProgram.release();
    clear();
    strips.render(mProgram, mMatrices);
    EXPECT_EQ(lit(), before);
}

TEST_F(OpenGlTest, SmoothLinesHaveSoftEdgesAndLeaveNoTrace)
{
    Lines lines;
    lines.addLine(2.0F, 2.0F, 29.0F, 11.0F);
    lines.render(mProgram, mMatrices);
    const int hard = lit();
    clear();
    lines.setAntiAliasing(true);
    lines.render(mProgram, mMatrices);
    EXPECT_GT(lit(), hard);
    EXPECT_FALSE(mContext.functions()->glIsEnabled(GL_BLEND));
}

} // namespace
