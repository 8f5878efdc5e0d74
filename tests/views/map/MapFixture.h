#pragma once

#include "card/CardContainer.h"
#include "core/Property.h"
#include "gui/look/Resources.h"
#include "platform/tessel/Geodetic.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "views/map/DialogDataMap.h"
#include "views/map/WidgetMap.h"
#include "views/map/model/MapContext.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

#include <cmath>
#include <memory>
#include <utility>
#include <vector>

namespace VELIX::Test {

/// A map in the window of a record whose positions are given in degrees.
struct MapFixture : ::testing::Test
{
    static constexpr int kOil = 500;
    static constexpr int kLatitude = 501;
    static constexpr int kLongitude = 502;

    /// Degrees as hundreds and minutes, as the unit writes them.
    static float recorded(double degrees)
    {
        const double whole = std::trunc(degrees);
        return static_cast<float>(whole * 100.0 + (degrees - whole) * 60.0);
    }
    /// Violet to pink, which neither the map nor a tile of the test server has.
    static bool isPath(QRgb pixel)
    {
        return qBlue(pixel) > qGreen(pixel) + 60 && qGreen(pixel) < 120;
    }

    void SetUp() override
    {
        initResources();
        settings.setString("TileServer", "");
        ProfileBuilder builder;
        builder.threshold("Hot", {{90.0, "yellow", "WARNING"}});
        builder.device("EMU").parameter(kOil, QStringLiteral("Oil"), "FLOAT");
        builder.set("thresholdId", "Hot").set("precision", "1").set("unitMetric", "C");
        builder.parameter(kLatitude, QStringLiteral("Lat"), "FLOAT");
        builder.set("velixDataType", "Latitude");
        builder.parameter(kLongitude, QStringLiteral("Lon"), "FLOAT");
        builder.set("velixDataType", "Longitude");
        ASSERT_TRUE(builder.load(profile));
        profile.data().devices[0].parameters.at(kOil).selected = true;
    }
    void TearDown() override { view.reset(); }

    /// Positions one second apart from second 10 on.
    void load(const std::vector<std::pair<double, double>>& places)
    {
        RecordBuilder record;
        double time = 10.0;
        for (const auto& [latitude, longitude] : places) {
            record.at(time).id(kOil).floatValue(time > 11.5 ? 95.0F : 20.0F);
            record.id(kLatitude).floatValue(recorded(latitude));
            record.id(kLongitude).floatValue(recorded(longitude));
            time += 1.0;
        }
        ASSERT_TRUE(record.write(folder.filePath(QStringLiteral("1.CAN"))));
        ASSERT_TRUE(card.readContainer(folder.path()));
        ASSERT_EQ(card.loadFiles({QStringLiteral("1.CAN")}), 1);
    }
    void show()
    {
        view =
            std::make_unique<DialogDataMap>(profile, card, settings, folder.path().toStdString());
        if (card.hasRecord()) {
            view->updateRecord(&card.recordData());
            view->setTime(card.recordData().startTime);
        }
        view->resize(600, 400);
        view->show();
        QApplication::setActiveWindow(view.get());
        map().setFocus();
        ASSERT_TRUE(QTest::qWaitFor([this] { return map().paintCount() > 1; }));
    }
    WidgetMap& map() { return view->map(); }
    const MapContext& context() { return view->mapContext(); }
    QPointF windowOf(double latitude, double longitude)
    {
        double x = 0.0;
        double y = 0.0;
        map().latLong2Window(latitude, longitude, &x, &y);
        return {x, y};
    }
    QAction* center() { return view->findChild<QAction*>(QStringLiteral("actionCenterAc")); }
    void wheel(int delta, Qt::MouseEventSource source = Qt::MouseEventNotSynthesized,
               const QPoint& pixels = {})
    {
        const QPointF place(150.0, 100.0);
        QWheelEvent event(place, map().mapToGlobal(place.toPoint()), pixels, {0, delta},
                          Qt::NoButton, Qt::NoModifier, Qt::ScrollUpdate, false, source);
        QApplication::sendEvent(&map(), &event);
    }
    std::pair<double, double> placeAt(const QPointF& window)
    {
        // Found by approximation, without another operation of the widget.
        const double perPixel = context().metresPerPixel / 111120.0;
        double lat = context().centreLatitude;
        double lon = context().centreLongitude;
        for (int i = 0; i < 20; ++i) {
            const QPointF off = window - windowOf(lat, lon);
            lat -= off.y() * perPixel;
            lon += off.x() * perPixel / std::cos(lat * Tessel::Geodetic::kRadiansPerDegree);
        }
        return {lat, lon};
    }

    QTemporaryDir folder;
    Property settings;
    Profile profile;
    CardContainer card{profile};
    std::unique_ptr<DialogDataMap> view;
};

} // namespace VELIX::Test
