#pragma once

#include "bench/Require.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <cmath>
#include <memory>

namespace VELIX {

/// An hour of engine data, ten rows a second: 30 selected parameters, two of which are a position
/// and a third of which have thresholds.
struct EngineHour
{
    static constexpr int kRows = 36'000;
    static constexpr int kParameters = 30;

    std::unique_ptr<Profile> profile = makeProfile();
    std::shared_ptr<RecordData> record = makeRecord();

private:
    static constexpr int kFirstId = 500;

    static bool isInteger(int parameter) { return parameter % 5 == 4; }

    static std::unique_ptr<Profile> makeProfile()
    {
        Test::ProfileBuilder builder;
        builder.threshold("Hot", {{0.0, "lime", "OK"}, {90.0, "yellow", "WARNING"}});
        builder.device("Lane A");
        for (int i = 0; i < kParameters; ++i) {
            const QString name = QStringLiteral("Parameter %1").arg(i);
            builder.parameter(kFirstId + i, name, isInteger(i) ? "USHORT" : "FLOAT")
                .set("precision", "2")
                .set("unitMetric", "C");
            if (i % 3 == 0) {
                builder.set("thresholdId", "Hot");
            }
            if (i < 2) {
                builder.set("velixDataType", i == 0 ? "Latitude" : "Longitude");
            }
        }
        auto profile = std::make_unique<Profile>();
        require(builder.load(*profile), "the profile of the benchmark does not load");
        Test::ProfileBuilder::selectAll(*profile);
        return profile;
    }

    static std::shared_ptr<RecordData> makeRecord()
    {
        Test::RecordBuilder builder;
        for (int row = 0; row < kRows; ++row) {
            builder.at(row / 10.0);
            for (int i = 0; i < kParameters; ++i) {
                builder.id(static_cast<std::uint32_t>(kFirstId + i));
                if (i < 2) {
                    builder.floatValue(static_cast<float>(4800.0 + row * 1e-3));
                } else if (isInteger(i)) {
                    builder.ushortValue(static_cast<std::uint16_t>(row + i));
                } else {
                    builder.floatValue(static_cast<float>(60.0 + 40.0 * std::sin(row * 0.01 + i)));
                }
            }
        }
        return builder.data();
    }
};

} // namespace VELIX
