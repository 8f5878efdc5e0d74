// The finished demo card, read as any other card.

#include "tools/democard/DemoCard.h"
#include "card/CardContainer.h"
#include "card/LimitFinder.h"
#include "card/SampleWalk.h"
#include "card/WarningFinder.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tools/democard/MonitorModel.h"

#include <QCryptographicHash>
#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <set>

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

TEST_F(DemoCard, HasTheEventsOfItsStory)
{
    const struct
    {
        std::uint32_t cycle;
        QTime powerUp;
        std::size_t flights;
        std::vector<const char*> events; ///< "name colour" of a limit or "name: value" of a lamp
        std::array<std::uint32_t, 3> faults; ///< bits that lane A, lane B and the unit report
    } rows[] = {
        {1,
         QTime(12, 41, 17),
         2,
         {"Lane A Oil Temperature #ffc65c", "Lane A Oil Temperature #ff8070",
          "Airframe Bus Voltage #ff8070", "Lane A Oil Lamp: 1: amber", "Lane A Oil Lamp: 2: red",
          "Airframe Fuel Lamp: 1: amber"},
         {bit(EFaultA::OilHot) | bit(EFaultA::OilLimit) | bit(EFaultA::SupplyLow), 0, 0}},
        {2,
         QTime(14, 2, 44),
         1,
         {"Lane A Engine Speed #ff8070", "Airframe Bus Voltage #ffc65c",
          "Airframe Power Lamp: 1: amber", "Lane B Lane Lamp: 1: amber"},
         {bit(EFaultA::Overspeed), bit(EFaultB::ExhaustSensor),
          bit(EFaultUnit::GeneratorOff) | bit(EFaultUnit::WorkshopDue)}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.cycle);
        ASSERT_EQ(card().loadCycle(row.cycle, -1), 1);
        const RecordCycle& cycle = card().recordCycles().at(row.cycle);
        // Dated by the second file, within the seconds that headers round to.
        EXPECT_TRUE(cycle.files[0].recordInfo().dateInvalid);
        EXPECT_EQ(cycle.dateTime.date(), QDate(2026, 6, 13));
        EXPECT_LE(std::abs(cycle.dateTime.time().secsTo(row.powerUp)), 1);
        EXPECT_EQ(cycle.flights.size(), row.flights);
        for (const RecordFlight& flight : cycle.flights) {
            EXPECT_NEAR(flight.statistic.minAlt, 372.0, 1.0);
            EXPECT_GT(flight.statistic.climb, 990.0);
            EXPECT_NEAR(flight.statistic.distance15, 500.0, 150.0);
        }
        std::set<std::string> events;
        const std::vector<RecordLimit> limits = findLimits(card().recordData(), profile());
        for (const RecordLimit& limit : limits) {
            events.insert(limit.name + " " + limit.color.name().toStdString());
        }
        // The list is to be read, not scrolled: sensors that hover around a threshold would fill
        // it.
        EXPECT_LT(limits.size(), 25U);
        for (const RecordWarning& warning : findWarnings(card().recordData(), profile())) {
            events.insert(warning.name + ": " +
                          warning.value.substr(0, warning.value.find(' ', 3)));
        }
        for (const char* event : row.events) {
            EXPECT_EQ(events.count(event), 1U) << event;
        }
        const std::uint32_t words[] = {0x4F0, 0x5F0, 0x3F0};
        for (std::size_t i = 0; i < row.faults.size(); ++i) {
            EXPECT_EQ(bitsOf(words[i]) & row.faults[i], row.faults[i]) << words[i];
        }
    }
}

/// The largest step between two neighbours, in degrees.
double largestStep(const std::vector<double>& degrees)
{
    double largest = 0.0;
    for (std::size_t i = 1; i < degrees.size(); ++i) {
        largest = std::max(largest, std::abs(degrees[i] - degrees[i - 1]));
    }
    return largest;
}

TEST_F(DemoCard, PositionsJumpAndTheFilterHoldsThem)
{
    const std::pair<std::uint32_t, const char*> rows[] = {{1U, "Latitude"}, {2U, "Longitude"}};
    for (const auto& [cycle, role] : rows) {
        ASSERT_EQ(card().loadCycle(cycle, -1), 1);
        const ProfileParameter p = profile().getParameterFromVelixType(QLatin1String(role));
        std::vector<double> filtered;
        std::vector<double> raw;
        forEachSample(card().recordData(), p, profile(), [&](const ParameterSample& sample) {
            filtered.push_back(sample.position());
            raw.push_back(ParameterSample(sample.entry(), p).position());
        });
        EXPECT_GT(largestStep(raw), 0.15) << role;
        EXPECT_LT(largestStep(filtered), 0.002) << role;
    }
}

} // namespace
} // namespace VELIX::Demo
