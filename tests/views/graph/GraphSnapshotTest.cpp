#include "views/graph/GraphSnapshot.h"

#include "tests/support/TestFile.h"
#include "tests/views/graph/widget/GraphFixture.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

constexpr int kRed = 0xFF0000; // of the first trace

TEST(GraphSnapshotTest, ImagesHaveTheFormatOfTheirSuffix)
{
    const QTemporaryDir folder;
    GraphFixture<> fixture;
    fixture.graph.activateGrid(false); // which is red as well
    const QPixmap view = fixture.graph.grab();
    const struct
    {
        const char* name;
        const char* start; ///< of the file
    } rows[] = {{"a.bmp", "BM"}, {"b.png", "\x89PNG"}, {"c.JPG", "\xFF\xD8"}, {"d.unknown", "BM"}};
    for (const auto& row : rows) {
        const QString path = folder.filePath(QLatin1String(row.name));
        EXPECT_EQ(GraphSnapshot::save(fixture.graph, view, path), QString());
        EXPECT_TRUE(readFile(path).startsWith(row.start)) << row.name;
        const QImage image(path);
        EXPECT_EQ(image.size(), view.size()) << row.name;
        EXPECT_GT(pixelsLike(image, fixture.plot(), QColor(kRed), 120), 100) << row.name;
    }
}

TEST(GraphSnapshotTest, AsSvgTheTracesAreLines)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("e.svg"));
    GraphFixture<> fixture;
    ASSERT_EQ(GraphSnapshot::save(fixture.graph, fixture.graph.grab(), path), QString());
    QSvgRenderer svg(path);
    ASSERT_TRUE(svg.isValid());
    QImage drawn(fixture.graph.size(), QImage::Format_RGB32);
    QPainter painter(&drawn);
    svg.render(&painter);
    painter.end();
    EXPECT_GT(pixelsLike(drawn, fixture.plot(), QColor(kRed)), 100);
    EXPECT_TRUE(readFile(path).contains("<polyline"));
    EXPECT_FALSE(readFile(path).contains("<image"));
}

} // namespace
