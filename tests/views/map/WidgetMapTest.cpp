#include "tests/views/map/MapFixture.h"
#include "views/map/MapValues.h"

#include <QLabel>

namespace VELIX {
namespace {

using Test::RecordBuilder;

struct WidgetMapTest : Test::MapFixture
{};

TEST_F(WidgetMapTest, TheAircraftPointsAlongItsCourse)
{
    load({{47.0, 8.0}, {47.0, 8.1}, {47.0, 8.2}, {46.9, 8.2}, {46.8, 8.2}});
    show();
    const auto bodyAt = [this](double time) {
        view->setTime(time);
        const QImage image = map().grabFramebuffer();
        const QPointF place = windowOf(map().acPosition().latitude, map().acPosition().longitude);
        // Where the wings are: half a span beside the middle.
        const auto isBody = [&](double dx, double dy) {
            const QPoint pixel((place + QPointF(dx, dy)).toPoint());
            const QRgb color = image.pixel(pixel);
            return qBlue(color) > 150 && qRed(color) < 110;
        };
        return std::make_pair(isBody(0, -11) || isBody(0, 11), isBody(-11, 0) || isBody(11, 0));
    };
    // The body points along the course, and the wings, which are swept, do not reach that line.
    EXPECT_TRUE(bodyAt(11.0).second) << "eastwards";
    EXPECT_TRUE(bodyAt(13.0).first) << "southwards";
    EXPECT_NEAR(map().acPosition().course, 180.0, 1.0);
    EXPECT_NEAR(view->calcPositionAtTime(10.5).longitude, 8.05, 1e-4);
    EXPECT_EQ(view->calcPositionAtTime(9.0).time, 0.0);
}

TEST_F(WidgetMapTest, ShowsValuesAtTheCursorAndSaysWhatIsMissing)
{
    show();
    auto* hint = view->findChild<QLabel*>(QStringLiteral("mapHint"));
    ASSERT_TRUE(hint->isVisible());
    EXPECT_TRUE(hint->text().contains(QStringLiteral("No record open")));
    EXPECT_FALSE(center()->isEnabled());
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    view->updateRecord(&card.recordData());
    view->setTime(10.0);
    EXPECT_FALSE(hint->isVisible());
    EXPECT_EQ(view->minimumWidth(), 200);
    const auto* values = dynamic_cast<MapValues*>(
        view->findChild<QWidget*>(QStringLiteral("mapPanel"))->findChild<QWidget*>());
    ASSERT_NE(values, nullptr);
    EXPECT_EQ(values->rows(), (std::vector<MapValues::Row>{
                                  {QStringLiteral("Oil:"), QStringLiteral("20.0\u2009C"), {}}}));
    view->setTime(12.0);
    EXPECT_EQ(values->rows()[0].value, QStringLiteral("95.0\u2009C"));
    EXPECT_EQ(values->rows()[0].background, QColor(Qt::yellow));

    RecordBuilder record;
    record.at(1.0).id(kOil).floatValue(20.0F).at(2.0).floatValue(20.0F);
    ASSERT_TRUE(record.write(folder.filePath(QStringLiteral("1.CAN"))));
    view->updateRecord(nullptr);
    ASSERT_EQ(card.loadFiles({QStringLiteral("1.CAN")}), 1);
    view->updateRecord(&card.recordData());
    EXPECT_TRUE(hint->text().contains(QStringLiteral("no positions")));
}

TEST_F(WidgetMapTest, AStillMapRestsAndKeepsItsSize)
{
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    QTest::qWait(400); // beyond the resizing after the first show
    EXPECT_EQ(map().size(), QSize(600, 400));
    const unsigned int painted = map().paintCount();
    QTest::qWait(2500);
    EXPECT_GE(map().paintCount(), painted + 2);
    EXPECT_LE(map().paintCount(), painted + 4);
}

} // namespace
} // namespace VELIX
