#include "platform/tessel/opengl/GlHandler.h"
#include "platform/tessel/opengl/LineStrips.h"
#include "platform/tessel/opengl/LineStripsSimple.h"
#include "platform/tessel/opengl/Lines.h"
#include "platform/tessel/opengl/MatrixSet.h"
#include "platform/tessel/opengl/Texture.h"
#include "platform/tessel/opengl/TextureFont.h"
#include "platform/tessel/opengl/TriangleStrip.h"

#include <QFile>
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

/// A context, and a black image of 32 x 32 pixels to draw into; one unit is one pixel, y upwards.
class OpenGlTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        mSurface.create();
        ASSERT_TRUE(mContext.create());
        ASSERT_TRUE(mContext.makeCurrent(&mSurface));
        mTarget = std::make_unique<QOpenGLFramebufferObject>(kSize, kSize);
        mTarget->bind();
        mContext.functions()->glViewport(0, 0, kSize, kSize);
        clear();
        ASSERT_TRUE(mMatrices.setOrtho(0.0, kSize, 0.0, kSize));
        ASSERT_TRUE(mGl.matrices().setOrtho(0.0, kSize, 0.0, kSize));
    }

    void TearDown() override
    {
        mProgram.release();
        mGl.release();
        mTarget.reset();
        EXPECT_EQ(mContext.functions()->glGetError(), 0U);
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
        const QImage image = mTarget->toImage().convertToFormat(QImage::Format_RGB32);
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                count += image.pixelColor(x, kSize - 1 - y) != QColor(Qt::black) ? 1 : 0;
            }
        }
        return count;
    }
    int lit() const { return lit(QRect(0, 0, kSize, kSize)); }
    /// The same for light, with partly covered pixels as parts.
    double light() const
    {
        const QImage image = mTarget->toImage().convertToFormat(QImage::Format_RGB32);
        double sum = 0.0;
        for (int y = 0; y < kSize; ++y) {
            for (int x = 0; x < kSize; ++x) {
                sum += image.pixelColor(x, y).redF();
            }
        }
        return sum;
    }
    QColor at(int x, int y) const { return mTarget->toImage().pixelColor(x, kSize - 1 - y); }

    QOffscreenSurface mSurface;
    QOpenGLContext mContext;
    std::unique_ptr<QOpenGLFramebufferObject> mTarget;
    LineProgram mProgram;
    MatrixSet mMatrices;
    GlHandler mGl;
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

TEST_F(OpenGlTest, APathTakesTheColourOfEachVertexOrOneForAll)
{
    LineStrips path;
    path.setVertexColors(true);
    path.setColor({1.0F, 0.0F, 0.0F, 1.0F});
    path.addVertex(2.5F, 4.5F, 900.0F);
    path.setColor({0.0F, 0.0F, 1.0F, 1.0F});
    path.addVertex(29.5F, 4.5F, 100.0F);
    path.beginStrip();
    path.addVertex(2.5F, 20.5F, 0.0F);
    path.addVertex(29.5F, 20.5F, 0.0F);
    ASSERT_TRUE(mGl.matrices().setOrtho(0.0, kSize, 0.0, kSize, -1000.0, 1000.0));
    path.render(mGl);
    EXPECT_GT(at(4, 4).red(), 200);
    EXPECT_GT(at(27, 4).blue(), 200);
    EXPECT_EQ(lit(QRect(0, 6, kSize, 13)), 0) << "strips are not connected";

    clear();
    path.setVertexColors(false);
    path.setColor({0.0F, 1.0F, 0.0F, 1.0F});
    path.render(mGl);
    EXPECT_EQ(at(4, 4), QColor(0, 255, 0));
    EXPECT_EQ(at(27, 20), QColor(0, 255, 0));
}

TEST_F(OpenGlTest, APathIsEquallyWideInEveryDirectionHoweverShortItsSteps)
{
    constexpr float kWidth = 4.0F;
    const struct
    {
        const char* name;
        float x;
        float y;
        int steps;
        double length; ///< with half the width at both ends
    } rows[] = {
        {"level", 16.0F, 0.0F, 1, 20.0},     {"upright in small steps", 0.0F, 16.0F, 60, 20.0},
        {"diagonal", 16.0F, 16.0F, 1, 26.6}, {"diagonal in small steps", 16.0F, 16.0F, 60, 26.6},
        {"steep", 8.0F, 16.0F, 40, 21.9},    {"of one place", 0.0F, 0.0F, 3, 4.0}};
    for (const auto& row : rows) {
        for (const bool soft : {false, true}) {
            LineStrips path;
            path.setColor({1.0F, 1.0F, 1.0F, 1.0F});
            path.setLineWidth(kWidth);
            path.setAntiAliasing(soft);
            for (int i = 0; i <= row.steps; ++i) {
                const float part = static_cast<float>(i) / static_cast<float>(row.steps);
                path.addVertex(8.0F + row.x * part, 8.0F + row.y * part);
            }
            clear();
            path.render(mGl);
            EXPECT_NEAR(light(), row.length * kWidth, 2.0 + row.length * kWidth * 0.15)
                << row.name << (soft ? ", soft" : "");
        }
    }
    LineStrips turning;
    turning.setLineWidth(kWidth);
    for (const float x : {8.0F, 24.0F, 8.0F}) {
        turning.addVertex(x, 8.0F);
    }
    turning.addVertex(8.0F, 24.0F);
    clear();
    turning.render(mGl);
    EXPECT_NEAR(light(), 20.0 * 4.0 + 16.0 * 4.0, 4.0) << "back, then round a corner";
    EXPECT_EQ(lit(QRect(0, 0, kSize, 6)), 0) << "no spikes";
}

TEST_F(OpenGlTest, ATranslucentAreaShowsWhatIsBehindIt)
{
    TriangleStrip area;
    area.setColor({1.0F, 1.0F, 1.0F, 0.5F});
    area.addVertex(0.0F, 0.0F);
    area.addVertex(16.0F, 0.0F);
    area.addVertex(0.0F, 16.0F);
    area.addVertex(16.0F, 16.0F);
    area.render(mGl);
    EXPECT_NEAR(at(8, 8).red(), 128, 2);
    EXPECT_EQ(at(8, 8).alpha(), 255) << "the target stays opaque";
    EXPECT_EQ(lit(), 256);
}

TEST_F(OpenGlTest, ATextureIsDrawnUprightTintedTurnedAndInParts)
{
    ASSERT_TRUE(mGl.matrices().setOrtho(0.0, kSize, kSize, 0.0)); // y downwards
    QImage image(2, 2, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    image.setPixelColor(0, 0, Qt::white);
    Texture texture;
    texture.setImage(image);
    texture.setColor({1.0F, 0.5F, 0.0F, 1.0F});
    texture.render(mGl, 8.0, 8.0, 16.0, 16.0);
    const QColor upperLeft = at(9, kSize - 1 - 9);
    EXPECT_EQ(upperLeft.red(), 255);
    EXPECT_NEAR(upperLeft.green(), 128, 2);
    EXPECT_EQ(at(22, kSize - 1 - 22), QColor(Qt::black)) << "transparent";

    clear();
    mGl.matrices().push();
    mGl.matrices().translate(16.0, 16.0);
    mGl.matrices().rotate(90.0); // from right to down
    texture.render(mGl, -8.0, -8.0, 16.0, 16.0);
    mGl.matrices().pop();
    EXPECT_EQ(at(22, kSize - 1 - 9).red(), 255);
    EXPECT_EQ(at(9, kSize - 1 - 9), QColor(Qt::black));

    clear();
    texture.renderPart(mGl, 0.0, 0.0, 4.0, 4.0, {0.0, 0.0, 0.25, 0.25});
    EXPECT_EQ(lit(), 16);
    texture.release();
}

TEST_F(OpenGlTest, TextIsWhatItsWidthSaysAndMissingCharactersAreStoodInFor)
{
    ASSERT_TRUE(mGl.matrices().setOrtho(0.0, kSize, kSize, 0.0));
    QFile file(QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray data = file.readAll();
    TextureFont font;
    ASSERT_TRUE(font.load(data.constData(), static_cast<std::size_t>(data.size()), "mono", 10));
    EXPECT_NEAR(font.width(QStringLiteral("MMMM")), 2.0 * font.width(QStringLiteral("ii")), 1.0);
    font.setColor({0.0F, 1.0F, 0.0F, 1.0F});
    font.render(mGl, 2.0, 2.0, QStringLiteral("II"));
    const int width = static_cast<int>(font.width(QStringLiteral("II"))) + 1;
    const int height = static_cast<int>(font.height()) + 1;
    EXPECT_GT(lit(), 10);
    EXPECT_EQ(lit(QRect(2, kSize - 2 - height, width, height)), lit()) << "all inside its box";

    for (const QString& text : {QStringLiteral("\u00e4\u00f6"), QStringLiteral("\u6f22"),
                                QString::fromUcs4(U"\U0001F6E9"), QStringLiteral("e\u0301")}) {
        clear();
        font.render(mGl, 2.0, 2.0, text);
        EXPECT_GT(lit(), 3) << text.toStdString();
    }
    clear();
    font.render(mGl, 2.0, 2.0, QString());
    font.render(mGl, 2.0, 2.0, QStringLiteral(" "));
    EXPECT_EQ(lit(), 0);
    font.release();
}

TEST_F(OpenGlTest, AnAtlasThatIsFullStartsAnew)
{
    ASSERT_TRUE(mGl.matrices().setOrtho(0.0, kSize, kSize, 0.0));
    TextureFont font;
    EXPECT_FALSE(font.load("no font", 7, "none", 200));
    for (char32_t c = U'!'; c < U'\u0250'; ++c) {
        font.render(mGl, 0.0, 0.0, QString::fromUcs4(&c, 1));
    }
    clear();
    font.render(mGl, 0.0, -60.0, QStringLiteral("M"));
    EXPECT_GT(lit(), 20);
    font.release();
}

} // namespace
