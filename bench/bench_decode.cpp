// Decoding of single messages: what every cell, curve point and exported field costs.

#include "bench/Require.h"
#include "core/Diagnostics.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

using namespace VELIX;
using namespace VELIX::Test;

enum Id : int { kFloat = 500, kUShort, kBLong, kLatitude };

/// Messages of one parameter: too many for a processor to learn branches and values, few enough to
/// stay in the cache.
constexpr int kMessages = 4096;

struct Fixture
{
    Profile profile;
    std::map<int, std::vector<RecordEntry>> messages;

    static Fixture& instance()
    {
        static Fixture fixture;
        return fixture;
    }

    const ProfileParameter& parameter(int id) const
    {
        return profile.data().devices.front().parameters.at(id);
    }

private:
    Fixture()
    {
        Diagnostics::setStream(stderr);
        ProfileBuilder b;
        b.conversion("C", "F", 1.8, 32.0);
        b.enumeration("Mode", {{0, "Off"}, {1, "Self test"}, {2, "In control"}, {3, "Standby"}});
        b.threshold("Hot",
                    {{0.0, "lime", "OK"}, {90.0, "yellow", "WARNING"}, {98.0, "red", "LIMIT"}});
        b.device("Lane A");
        const auto celsius = [&b] {
            b.set("unitMetric", "C").set("unitImperial", "F").set("thresholdId", "Hot");
            b.set("precision", "2");
        };
        b.parameter(kFloat, QStringLiteral("Oil temperature"), "FLOAT");
        celsius();
        b.parameter(kUShort, QStringLiteral("Oil pressure"), "USHORT");
        celsius();
        b.parameter(kBLong, QStringLiteral("Mode"), "BLONG").set("thresholdId", "Hot");
        b.set("enumId", "Mode").set("startBit", "3").set("endBit", "4");
        b.parameter(kLatitude, QStringLiteral("Latitude"), "FLOAT");
        b.set("velixDataType", "Latitude").set("precision", "6");
        require(b.load(profile), "the profile of the benchmark does not load");
        fill();
    }

    void fill()
    {
        RecordBuilder b;
        for (int i = 0; i < kMessages; ++i) {
            b.at(i * 0.1);
            b.id(kFloat).floatValue(static_cast<float>(i * 7919 % 10'000) * 0.01F);
            b.id(kUShort).ushortValue(static_cast<std::uint16_t>(i * 7919 % 100));
            b.id(kBLong).blongValue(static_cast<std::uint32_t>(i * 7919));
            b.id(kLatitude).floatValue(4812.0F + static_cast<float>(i) * 0.001F);
        }
        for (const RecordEntry& entry : b.entries()) {
            messages[static_cast<int>(entry.id)].push_back(entry);
        }
    }
};

/// Runs `decode(decoder, sample)` over the messages of a parameter again and again; the time of one
/// message, made a sample, is the benchmark's.
template <class Decode>
void overMessages(benchmark::State& state, EUnit unit, Decode decode)
{
    Fixture& fixture = Fixture::instance();
    const auto id = static_cast<int>(state.range(0));
    const ProfileParameter& p = fixture.parameter(id);
    const std::vector<RecordEntry>& messages = fixture.messages.at(id);
    fixture.profile.setCurrentUnit(unit);
    CoordinateFilter filter;
    std::size_t i = 0;
    for (auto _ : state) {
        decode(fixture.profile.decoder(), ParameterSample(messages[i++ % kMessages], p, filter));
    }
    state.SetLabel(p.name.toStdString());
}

void decodeNumber(const ProfileDecoder& decoder, const ParameterSample& sample)
{
    int band = 0;
    QColor color;
    benchmark::DoNotOptimize(decoder.number(sample, band, color));
    benchmark::DoNotOptimize(band);
}

void getDouble(benchmark::State& state)
{
    overMessages(state, eUnitMetric, decodeNumber);
}

void getDoubleImperial(benchmark::State& state)
{
    overMessages(state, eUnitImperial, decodeNumber);
}

void getDataState(benchmark::State& state)
{
    overMessages(state, eUnitMetric,
                 [](const ProfileDecoder& decoder, const ParameterSample& sample) {
                     int band = 0;
                     QColor color;
                     decoder.judge(sample, band, color);
                     benchmark::DoNotOptimize(band);
                 });
}

void getDataString(benchmark::State& state)
{
    overMessages(state, eUnitMetric,
                 [](const ProfileDecoder& decoder, const ParameterSample& sample) {
                     int band = 0;
                     QColor color;
                     benchmark::DoNotOptimize(decoder.text(sample, band, color));
                 });
}

void appendDataString(benchmark::State& state)
{
    std::string text;
    overMessages(state, eUnitMetric,
                 [&text](const ProfileDecoder& decoder, const ParameterSample& sample) {
                     text.clear();
                     decoder.appendText(sample, text);
                     benchmark::DoNotOptimize(text.data());
                 });
}

BENCHMARK(getDouble)->DenseRange(kFloat, kLatitude);
BENCHMARK(getDoubleImperial)->DenseRange(kFloat, kUShort);
BENCHMARK(getDataState)->DenseRange(kFloat, kLatitude);
BENCHMARK(getDataString)->DenseRange(kFloat, kLatitude);
BENCHMARK(appendDataString)->DenseRange(kFloat, kLatitude);

} // namespace

BENCHMARK_MAIN();
