#pragma once

#include "card/CardContainer.h"
#include "core/DataHandler.h"
#include "core/Property.h"
#include "gui/dialogs/ApplicationControl.h"
#include "gui/look/Resources.h"
#include "gui/project/AppContext.h"
#include "gui/project/Project.h"
#include "profile/Profile.h"
#include "tests/gui/FakeDialogs.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "tests/support/TestFile.h"

#include <QDir>
#include <QStringList>
#include <QTemporaryDir>

namespace VELIX::Test {

constexpr int kSpeedId = 300;
constexpr int kOilId = 500;
constexpr int kLatitudeId = 1036;
constexpr int kLongitudeId = 1037;
constexpr int kAltitudeId = 1038;

/// Ground speed and oil temperature once a second; `flights` times 30 s of flight in 90 s.
inline RecordBuilder engineRun(double start, int flights)
{
    RecordBuilder record;
    const int seconds = 90 * std::max(flights, 1);
    for (int i = 0; i < seconds; ++i) {
        const bool airborne = flights > 0 && i % 90 >= 30 && i % 90 < 60;
        record.at(start + i).id(kSpeedId).floatValue(airborne ? 80.0F : 5.0F);
        record.id(kOilId).floatValue(90.0F);
    }
    return record;
}

/// A card of two cycles: the first with two files and two flights, the second without a date.
inline bool writeCard(const QString& folder)
{
    return QDir().mkpath(folder) && engineRun(10, 2).write(folder + QStringLiteral("/0001.CAN")) &&
           engineRun(200, 0)
               .date(RecordBuilder::utc(2024, 3, 12, 8, 10, 0))
               .write(folder + QStringLiteral("/0002.CAN")) &&
           engineRun(5, 0).write(folder + QStringLiteral("/0003.CAN"));
}

/// A card of one cycle with two flights of 30 s in 180 s, and positions once a second.
inline bool writeFlights(const QString& folder)
{
    RecordBuilder record = engineRun(10, 2);
    for (int i = 0; i < 180; ++i) {
        record.at(10 + i).id(kLatitudeId).floatValue(4800.0F + 0.01F * static_cast<float>(i));
        record.id(kLongitudeId).floatValue(1100.0F + 0.01F * static_cast<float>(i));
        record.id(kAltitudeId).floatValue(500.0F);
    }
    return QDir().mkpath(folder) && record.write(folder + QStringLiteral("/0001.CAN"));
}

inline ProfileBuilder demoProfile()
{
    ProfileBuilder builder;
    builder.variant("Alpha").variant("Beta").conversion("C", "F", 1.8, 32);
    builder.device("Airframe")
        .parameter(kSpeedId, QStringLiteral("Ground Speed"), "FLOAT")
        .set("velixDataType", "GroundSpeed");
    builder.parameter(301, QStringLiteral("Flaps"), "FLOAT").set("variant", "Alpha");
    builder.device("Lane A")
        .parameter(kOilId, QStringLiteral("Oil Temp"), "FLOAT")
        .set("unitMetric", "C")
        .set("unitImperial", "F");
    return builder;
}

/// The same with positions.
inline ProfileBuilder flightProfile()
{
    ProfileBuilder builder = demoProfile();
    builder.device("Position");
    for (const auto& [id, name] :
         {std::pair(kLatitudeId, "Latitude"), std::pair(kLongitudeId, "Longitude"),
          std::pair(kAltitudeId, "Altitude")}) {
        builder.parameter(id, QLatin1String(name), "FLOAT").set("velixDataType", name);
    }
    return builder;
}

/// The models of a program with a home of its own, in place of the singletons.
struct TestProgram
{
    struct Control : ApplicationControl
    {
        void loadStyleFile(const QString& path) override { styles.append(path); }
        void restart() override { ++restarts; }
        QStringList styles;
        int restarts = 0;
    };

    TestProgram()
    {
        initResources();
        paths.init(home.path().toUtf8().constData(), home.path().toStdString());
        settings.setConfigFile(data("VELIX.ini").toStdString());
        settings.setString("TileServer", ""); // what the map cannot fetch would go into the log
    }

    /// A file in the program's own folder.
    QString data(const char* name) const
    {
        return home.filePath(QStringLiteral("VELIX/data/") + QLatin1String(name));
    }
    QString cardFolder() const { return home.filePath(QStringLiteral("card")); }
    bool installProfile() const { return demoProfile().write(data("Profile.xml")); }
    QString setting(const char* key) const
    {
        return QString::fromStdString(settings.getString(key, {}));
    }
    /// The setting as a later run would find it.
    QString storedSetting(const char* key) const
    {
        Property stored;
        stored.readXmlFile(data("VELIX.ini").toStdString());
        return QString::fromStdString(stored.getString(key, {}));
    }
    QString selection() const { return ProfileBuilder::selection(profile); }

    QTemporaryDir home;
    DataHandler paths;
    Property settings;
    Profile profile;
    CardContainer card{profile};
    Project project{profile};
    Control control;
    FakeDialogs dialogs;
    AppContext context{profile, card, settings, project, paths, control, {}, false};
};

} // namespace VELIX::Test
