#include "gui/look/ImageHandler.h"

#include "gui/look/Palette.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

using VELIX::Palette;

namespace {

QImage draw(const QIcon& icon, int side, QIcon::Mode mode, qreal ratio = 1.0)
{
    QImage image(qRound(side * ratio), qRound(side * ratio), QImage::Format_ARGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, QRect(0, 0, side, side), Qt::AlignCenter, mode);
    return image;
}

int opaquePixels(const QImage& image, const QColor& color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixel(x, y) == color.rgba() ? 1 : 0;
        }
    }
    return count;
}

bool hasInkOnItsEdge(const QImage& image)
{
    for (int i = 0; i < image.width(); ++i) {
        for (const QPoint at : {QPoint(i, 0), QPoint(i, image.height() - 1), QPoint(0, i),
                                QPoint(image.width() - 1, i)}) {
            if (qAlpha(image.pixel(at)) > 128) {
                return true;
            }
        }
    }
    return false;
}

TEST(ImageHandler, DrawsEveryImageInTheColoursOfItsLook)
{
    for (const Palette* palette : {&Palette::light(), &Palette::dark()}) {
        const ImageHandler handler(*palette);
        EXPECT_GT(handler.names().size(), 40);
        for (const QString& name : handler.names()) {
            if (name == QLatin1String("velix")) {
                continue; // keeps its own colours
            }
            const QIcon icon = handler.icon(name);
            const QImage normal = draw(icon, 48, QIcon::Normal);
            EXPECT_GT(opaquePixels(normal, palette->text), 8) << qUtf8Printable(name);
            EXPECT_FALSE(hasInkOnItsEdge(normal)) << qUtf8Printable(name);
            const QImage disabled = draw(icon, 48, QIcon::Disabled);
            EXPECT_GT(opaquePixels(disabled, palette->disabledText), 8) << qUtf8Printable(name);
            EXPECT_EQ(opaquePixels(disabled, palette->text), 0) << qUtf8Printable(name);
            EXPECT_GT(opaquePixels(draw(icon, 48, QIcon::Selected), palette->accentText), 8)
                << qUtf8Printable(name);
        }
    }
}

TEST(ImageHandler, DrawsWhatMeansSomethingInItsColour)
{
    const ImageHandler handler(Palette::dark());
    const std::pair<const char*, QColor> rows[] = {{"cursor", Palette::dark().accent},
                                                   {"warning", Palette::dark().warning},
                                                   {"limit", Palette::dark().limit}};
    for (const auto& [name, color] : rows) {
        const QImage image = draw(handler.icon(QLatin1String(name)), 48, QIcon::Normal);
        EXPECT_GT(opaquePixels(image, color), 8) << name;
    }
    EXPECT_TRUE(handler.icon(QStringLiteral("nosuch")).isNull());
}

TEST(ImageHandler, DrawsInDevicePixels)
{
    const QIcon icon = ImageHandler(Palette::light()).icon(QStringLiteral("tab-data"));
    // At ratio 2 the image is the one of twice the size, not a blown-up one.
    QImage fine = draw(icon, 16, QIcon::Normal, 2.0);
    fine.setDevicePixelRatio(1.0);
    EXPECT_EQ(fine, draw(icon, 32, QIcon::Normal));
    EXPECT_EQ(icon.pixmap(QSize(40, 20)).size(), QSize(40, 20)); // any size asked for
    EXPECT_EQ(icon.actualSize(QSize(40, 20)), QSize(20, 20));
}

TEST(ImageHandler, KeepsTheColoursOfTheProgramsOwnIcon)
{
    const QString velix = QStringLiteral("velix");
    EXPECT_EQ(draw(ImageHandler(Palette::dark()).icon(velix), 64, QIcon::Normal),
              draw(ImageHandler(Palette::light()).icon(velix), 64, QIcon::Normal));
}

} // namespace
