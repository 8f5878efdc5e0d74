// The finished demo card, read as any other card.

#include "tools/democard/DemoCard.h"
#include "card/CardContainer.h"
#include "card/LimitFinder.h"
#include "card/WarningFinder.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tools/democard/MessageTable.h"
#include "tools/democard/MonitorModel.h"

#include <QCryptographicHash>
#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace VELIX::Demo {
namespace {

/// To be renewed when the card is meant to change; any other difference is a machine's.
constexpr const char* kHash = "525f409a0564ebb6c280aa714345776bed42b9340c22bb407294cd738f8391f1";

QByteArray hashOf(const QString& folder)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const QDir dir(folder);
    for (const QString& name : dir.entryList(QDir::Files, QDir::Name)) {
        QFile file(dir.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        hash.addData(name.toUtf8());
        hash.addData(&file);
    }
    return hash.result().toHex();
}

/// The card and its profile ("Tow"), made once for all tests.
class DemoCard : public ::testing::Test
{
protected:
    struct World
    {
        World() : card(profile)
        {
            EXPECT_TRUE(writeDemoCard(folder.path()));
            const QString file = QStringLiteral(DEMO_RESOURCES "/Profile.xml");
            EXPECT_EQ(profile.loadProfile(file, QStringLiteral("Tow")), 1);
            EXPECT_TRUE(card.readContainer(folder.path()));
        }
        VELIX::Test::CapturedDiagnostics quiet;
        QTemporaryDir folder;
        Profile profile;
        CardContainer card;
    };
    static void SetUpTestSuite() { sWorld = std::make_unique<World>(); }
    static void TearDownTestSuite() { sWorld.reset(); }
    static CardContainer& card() { return sWorld->card; }
    static Profile& profile() { return sWorld->profile; }
    static QString folder() { return sWorld->folder.path(); }

    /// The flights of a cycle, which stays loaded as a whole.
    static const std::vector<RecordFlight>& flights(std::uint32_t cycle)
    {
        EXPECT_EQ(card().loadCycle(cycle, -1), 1);
        return card().recordCycles().at(cycle).flights;
    }
    /// All error bits that a fault word ever shows in the loaded data.
    static std::uint32_t bitsOf(std::uint32_t id)
    {
        std::uint32_t bits = 0;
        for (const RecordEntry& e : card().recordData().entries(id)) {
            for (std::size_t i = 0; i < 4; ++i) {
                bits |= static_cast<std::uint32_t>(e.data[4 + i]) << (24 - 8 * i);
            }
        }
        return bits;
    }

private:
    static std::unique_ptr<World> sWorld;
};

std::unique_ptr<DemoCard::World> DemoCard::sWorld;

template <typename Bit>
std::uint32_t bit(Bit b)
{
    return 1U << static_cast<unsigned>(b);
}

TEST_F(DemoCard, IsTheSameToTheByteEveryTimeAndEverywhere)
{
    QTemporaryDir again;
    ASSERT_TRUE(writeDemoCard(again.path()));
    EXPECT_EQ(hashOf(again.path()), hashOf(folder()));
    EXPECT_EQ(hashOf(folder()), QByteArray(kHash));
    EXPECT_FALSE(writeDemoCard(folder() + QStringLiteral("/missing")));
}

TEST_F(DemoCard, HasTwoPowerCyclesDatedByTheirSecondFile)
{
    const auto& cycles = card().recordCycles();
    ASSERT_EQ(cycles.size(), 2U);
    for (const std::uint32_t number : {1U, 2U}) {
        const RecordCycle& cycle = cycles.at(number);
        EXPECT_EQ(cycle.files.size(), 3U);
        EXPECT_TRUE(cycle.files[0].recordInfo().dateInvalid);
        EXPECT_FALSE(cycle.files[1].recordInfo().dateInvalid);
        EXPECT_EQ(cycle.dateTime.date(), QDate(2026, 6, 13));
        EXPECT_GT(cycle.stopTime, 3000.0);
    }
    // Power-up as planned, within the seconds that headers round to.
    EXPECT_LE(std::abs(cycles.at(1).dateTime.time().secsTo(QTime(12, 41, 17))), 1);
    EXPECT_LE(std::abs(cycles.at(2).dateTime.time().secsTo(QTime(14, 2, 44))), 1);
}

TEST_F(DemoCard, SendsEveryMessageAtItsRateInTimeOrder)
{
    ASSERT_EQ(card().loadCycle(1, -1), 1);
    const RecordData& data = card().recordData();
    const double seconds = card().stopTime() - card().startTime();
    for (const Message& m : messageTable()) {
        const EntryList& entries = data.entries(m.id);
        const double unknown = m.needsPosition ? 35.0 : 0.0; // s until the receiver has a fix
        EXPECT_NEAR(static_cast<double>(entries.size()), (seconds - unknown) * m.rate, 1.0 + m.rate)
            << m.name;
        double last = 0.0;
        for (const RecordEntry& e : entries) {
            ASSERT_GT(e.time, last) << m.name;
            ASSERT_EQ(e.source, sourceOf(m)) << m.name;
            last = e.time;
        }
    }
}

TEST_F(DemoCard, HasTwoTowsAndARidgeFlightWithSoundFigures)
{
    std::vector<RecordFlight> all = flights(1);
    ASSERT_EQ(all.size(), 2U);
    const std::vector<RecordFlight>& ridge = flights(2);
    ASSERT_EQ(ridge.size(), 1U);
    all.push_back(ridge.front());
    for (const RecordFlight& f : all) {
        const FlightStatistic& s = f.statistic;
        ASSERT_TRUE(s.valid);
        EXPECT_NEAR(s.minAlt, 372.0, 1.0);
        EXPECT_GT(s.distance, 200.0);
        EXPECT_LT(s.distance, 400.0);
        EXPECT_GT(s.distance15, s.distance + 80.0);
        EXPECT_LT(s.distance15, 650.0);
        EXPECT_GT(s.climbRate, 1.5);
        EXPECT_GT(s.fuelA, 2.0);
        EXPECT_NEAR(s.fuelA, s.fuelB, s.fuelA * 0.1);
    }
    EXPECT_NEAR(all[0].statistic.climb, 1010.0, 15.0);
    EXPECT_NEAR(all[1].statistic.climb, 1040.0, 15.0);
    EXPECT_LT(all[1].statistic.climbRate, all[0].statistic.climbRate);
    EXPECT_GT(all[2].statistic.flightTime, 2400.0);
    EXPECT_GT(all[2].statistic.maxSpeed, 220.0);
}

/// Whether a parameter enters its warning (1) or limit (2) band in [from, to] seconds.
bool enters(const std::vector<RecordLimit>& limits, const char* name, const QColor& band,
            double from, double to)
{
    return std::any_of(limits.begin(), limits.end(), [&](const RecordLimit& l) {
        return l.name == name && l.color == band && l.time >= from && l.time <= to;
    });
}

TEST_F(DemoCard, ExceedsAFewLimits)
{
    const QColor amber(0xFF, 0xC6, 0x5C);
    const QColor red(0xFF, 0x80, 0x70);
    const std::vector<RecordFlight> tows = flights(1);
    const std::vector<RecordLimit> first = findLimits(card().recordData(), profile());
    ASSERT_EQ(tows.size(), 2U);
    const char* oil = "Lane A Oil Temperature";
    EXPECT_FALSE(enters(first, oil, amber, tows[0].startTime, tows[0].stopTime));
    EXPECT_TRUE(enters(first, oil, amber, tows[1].startTime, tows[1].stopTime));
    EXPECT_TRUE(enters(first, oil, red, tows[1].startTime, tows[1].stopTime));
    EXPECT_TRUE(enters(first, "Airframe Bus Voltage", red, 40.0, 60.0)) << "cranking";

    ASSERT_EQ(card().loadCycle(2, -1), 1);
    const double end = card().stopTime();
    const std::vector<RecordLimit> second = findLimits(card().recordData(), profile());
    EXPECT_TRUE(enters(second, "Lane A Engine Speed", red, 900.0, end)) << "pushing over";
    EXPECT_TRUE(enters(second, "Airframe Bus Voltage", amber, 2000.0, end)) << "generator";
    // The list is to be read, not scrolled: sensors that hover around a threshold would fill it.
    EXPECT_LT(first.size(), 25U);
    EXPECT_LT(second.size(), 25U);
}

TEST_F(DemoCard, LightsLampsAndSetsErrorBits)
{
    ASSERT_EQ(card().loadCycle(1, -1), 1);
    std::vector<RecordWarning> lamps = findWarnings(card().recordData(), profile());
    const auto lit = [&](const char* name, const char* value) {
        return std::any_of(lamps.begin(), lamps.end(), [&](const RecordWarning& w) {
            return w.name == name && w.time > 10.0 && w.value.find(value) != std::string::npos;
        });
    };
    EXPECT_TRUE(lit("Lane A Oil Lamp", "amber"));
    EXPECT_TRUE(lit("Lane A Oil Lamp", "red"));
    EXPECT_TRUE(lit("Airframe Fuel Lamp", "amber"));
    EXPECT_EQ(bitsOf(0x4F0), bit(EFaultA::SelfTest) | bit(EFaultA::LaneOff) | bit(EFaultA::OilHot) |
                                 bit(EFaultA::OilLimit) | bit(EFaultA::SupplyLow));

    ASSERT_EQ(card().loadCycle(2, -1), 1);
    lamps = findWarnings(card().recordData(), profile());
    EXPECT_TRUE(lit("Airframe Power Lamp", "amber"));
    EXPECT_TRUE(lit("Lane B Lane Lamp", "amber"));
    EXPECT_TRUE((bitsOf(0x4F0) & bit(EFaultA::Overspeed)) != 0);
    EXPECT_TRUE((bitsOf(0x5F0) & bit(EFaultB::ExhaustSensor)) != 0);
    EXPECT_TRUE((bitsOf(0x3F0) & bit(EFaultUnit::GeneratorOff)) != 0);
    EXPECT_TRUE((bitsOf(0x3F0) & bit(EFaultUnit::WorkshopDue)) != 0);
}

TEST_F(DemoCard, PositionsJumpAndTheFilterHoldsThem)
{
    const std::tuple<std::uint32_t, QString> rows[] = {{1U, QStringLiteral("Latitude")},
                                                       {2U, QStringLiteral("Longitude")}};
    for (const auto& [cycle, role] : rows) {
        ASSERT_EQ(card().loadCycle(cycle, -1), 1);
        const ProfileParameter filtered = profile().getParameterFromVelixType(role);
        ProfileParameter raw = filtered; // decoded without the role, and so without the filter
        raw.coordinate = ECoordinate::None;
        profile().resetCoordinates();
        double filteredStep = 0.0;
        double rawStep = 0.0;
        double last = 0.0;
        double lastRaw = 0.0;
        for (const RecordEntry& e :
             card().recordData().entries(static_cast<std::uint32_t>(raw.id))) {
            const double value = profile().getDouble(e, filtered, true);
            const double rawValue = Profile::calcCoordinate(profile().getDouble(e, raw, true));
            if (last != 0.0) {
                filteredStep = std::max(filteredStep, std::abs(value - last));
                rawStep = std::max(rawStep, std::abs(rawValue - lastRaw));
            }
            last = value;
            lastRaw = rawValue;
        }
        EXPECT_GT(rawStep, 0.15) << role.toStdString();
        EXPECT_LT(filteredStep, 0.002) << role.toStdString();
    }
}

} // namespace
} // namespace VELIX::Demo
