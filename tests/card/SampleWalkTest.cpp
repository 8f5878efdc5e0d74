#include "card/SampleWalk.h"

#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

namespace VELIX::Test {
namespace {

enum Id : std::uint32_t { kSpeed = 500, kLatitude = 1036, kLongitude = 1037 };

class SampleWalk : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ProfileBuilder builder;
        builder.device("EMU").parameter(kSpeed, QStringLiteral("Speed"), "FLOAT");
        for (const char* role : {"Latitude", "Longitude"}) {
            const int id = role == std::string("Latitude") ? kLatitude : kLongitude;
            builder.parameter(id, QString::fromLatin1(role), "FLOAT").set("velixDataType", role);
        }
        ASSERT_TRUE(builder.load(mProfile));
    }

    void add(std::uint32_t id, const std::vector<std::pair<double, float>>& samples)
    {
        for (const auto& [time, value] : samples) {
            mRecord.append(RecordBuilder().at(time).id(id).floatValue(value).last());
        }
    }

    /// The numbers of a walk, rounded to tenths.
    std::vector<double> walk(std::uint32_t id) const
    {
        std::vector<double> numbers;
        forEachSample(mRecord, parameter(id), mProfile, [&](const ParameterSample& sample) {
            numbers.push_back(std::round(mProfile.decoder().number(sample) * 10.0) / 10.0);
        });
        return numbers;
    }

    const ProfileParameter& parameter(std::uint32_t id) const
    {
        return mProfile.data().devices.front().parameters.at(static_cast<int>(id));
    }

    Profile mProfile;
    RecordData mRecord;
};

using Numbers = std::vector<double>;

TEST_F(SampleWalk, PositionsComeByTimeThroughAFilterOfTheirOwnOthersAsInTheFile)
{
    add(kSpeed, {{2, 20}, {1, 10}});
    EXPECT_EQ(walk(kSpeed), (Numbers{20, 10}));
    Numbers byTime;
    forEachSampleByTime(mRecord, parameter(kSpeed), mProfile, [&](const ParameterSample& sample) {
        byTime.push_back(ProfileDecoder::metric(sample));
    });
    EXPECT_EQ(byTime, (Numbers{10, 20}));

    add(kLatitude, {{1, 4830}, {2, 4830}, {3, 4830}, {4, 4830}, {7, 1030}, {5, 4830}, {8, 4830}});
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(walk(kLatitude), (Numbers{48.5, 48.5, 48.5, 48.5, 48.5, 48.5, 48.5}))
            << "a jump is not accepted, whatever was walked before";
    }
    const ParameterSample single(mRecord.entries(kLatitude)[4], parameter(kLatitude));
    EXPECT_NEAR(mProfile.decoder().number(single), 10.5, 1e-6);
}

TEST_F(SampleWalk, LongitudesAreJudgedAtTheLatitudeOfTheRecord)
{
    // 0.12 degrees are 13 km at the equator, but less than 7 km at 60 degrees north.
    const std::vector<std::pair<double, float>> longitudes = {{1, 1000}, {2, 1000}, {3, 1000},
                                                              {4, 1000}, {5, 1000}, {6, 1007.2F}};
    add(kLongitude, longitudes);
    EXPECT_EQ(walk(kLongitude), (Numbers{10, 10, 10, 10, 10, 10}));
    add(kLatitude, {{1, 10}, {2, 6000}});
    EXPECT_EQ(walk(kLongitude), (Numbers{10, 10, 10, 10, 10, 10.1}));
    add(kLatitude, {{3, 6000}, {4, 6000}, {5, 6000}, {6, 10}});
    EXPECT_EQ(walk(kLongitude), (Numbers{10, 10, 10, 10, 10, 10.1})) << "the last accepted one";
}

} // namespace
} // namespace VELIX::Test
