#include "tools/democard/DemoCard.h"

#include "tools/democard/FlightPlan.h"
#include "tools/democard/MessageTable.h"
#include "tools/democard/RecordWriter.h"
#include "tools/democard/Simulation.h"

#include <cmath>
#include <vector>

namespace VELIX::Demo {

namespace {

constexpr std::uint64_t kSeed = 61328;
constexpr double kTicksPerSecond = 32.0e6;
constexpr std::uint64_t kTicksPerStep = 1600000;
constexpr std::uint64_t kTicksPerMessage = 23000; ///< about 0.7 ms: the bus sends one at a time
constexpr int kStepsPerFile = 21 * 60 * Simulation::kStepsPerSecond;
constexpr int kSwappedFile = 1; ///< the one file in the other byte order, so that both are seen

/// Writes the files of one power cycle after the other; the numbers go on over the whole card.
class CardRecorder
{
public:
    explicit CardRecorder(const QString& folder)
        : mFolder(folder), mSimulation(kSeed), mCounts(messageTable().size())
    {}

    bool record(const PowerCycle& cycle)
    {
        mSimulation.powerUp(cycle);
        mTicks = static_cast<std::uint64_t>(cycle.clockStart * kTicksPerSecond);
        mStep = 0;
        for (bool first = true; !mSimulation.finished(); first = false) {
            if (!recordFile(cycle, first)) {
                return false;
            }
        }
        return true;
    }

private:
    /// The unit learns the date from the satellites only when its first file is already open.
    bool recordFile(const PowerCycle& cycle, bool first)
    {
        const EByteOrder order =
            mNumber == kSwappedFile ? EByteOrder::BigEndian : EByteOrder::LittleEndian;
        RecordWriter writer(order, first ? HeaderDate() : dateOf(cycle), mTicks);
        for (int i = 0; i < kStepsPerFile && !mSimulation.finished(); ++i) {
            mSimulation.step();
            sendMessages(writer);
            mTicks += kTicksPerStep;
            ++mStep;
        }
        const QString name = QStringLiteral("R%1.CAN").arg(mNumber++, 5, 10, QLatin1Char('0'));
        return writer.write(mFolder + QLatin1Char('/') + name);
    }

    HeaderDate dateOf(const PowerCycle& cycle) const
    {
        const int clock = static_cast<int>(static_cast<double>(mTicks) / kTicksPerSecond);
        const int seconds = (cycle.hour * 60 + cycle.minute) * 60 + cycle.second + clock;
        return {.year = 2026,
                .month = 6,
                .day = 13,
                .hour = static_cast<std::uint8_t>(seconds / 3600),
                .minute = static_cast<std::uint8_t>(seconds / 60 % 60),
                .second = static_cast<std::uint8_t>(seconds % 60)};
    }

    void sendMessages(RecordWriter& writer)
    {
        std::uint64_t ticks = mTicks;
        const std::vector<Message>& table = messageTable();
        for (std::size_t i = 0; i < table.size(); ++i) {
            const Message& m = table[i];
            const int period = Simulation::kStepsPerSecond / m.rate;
            // Messages of one rate are spread over its period, as on a well-planned bus.
            if ((mStep + static_cast<int>(i)) % period != 0) {
                continue;
            }
            if (m.needsPosition && !mSimulation.state().positionKnown) {
                continue;
            }
            const UnitState& state = mSimulation.state();
            writer.append(m.id, sourceOf(m), ticks, payload(m, state, mCounts[i]++));
            ticks += kTicksPerMessage + (m.id * 977U + static_cast<unsigned>(mStep)) % 1500U;
        }
    }

    QString mFolder;
    Simulation mSimulation;
    std::vector<std::uint32_t> mCounts; ///< messages sent so far, by table position
    std::uint64_t mTicks = 0;
    int mStep = 0;
    int mNumber = 0;
};

} // namespace

bool writeDemoCard(const QString& folder)
{
    CardRecorder recorder(folder);
    for (const PowerCycle& cycle : demoCycles()) {
        if (!recorder.record(cycle)) {
            return false;
        }
    }
    return true;
}

} // namespace VELIX::Demo
