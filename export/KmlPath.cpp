#include "export/KmlPath.h"

#include "card/SampleWalk.h"
#include "core/Diagnostics.h"
#include "core/Truncate.h"
#include "export/FixedText.h"
#include "profile/Profile.h"

#include <cmath>
#include <iterator>
#include <string>

namespace VELIX {

namespace {

using Member = double KmlExportData::*;

/// One of the three series that a position is made of.
struct Series
{
    int id; ///< CAN identifier
    Member member;
    const char* logged; ///< its word in the log; null if it is not logged
};

constexpr Series kLatitude{1036, &KmlExportData::latitude, "lat"};
constexpr Series kLongitude{1037, &KmlExportData::longitude, "long"};
constexpr Series kAltitude{1038, &KmlExportData::altitude, nullptr};

/// Collects lines of the log: a flight has hundreds of thousands of positions, and a call of the
/// system for each would take longer than the export.
class Lines
{
public:
    Lines() = default;
    ~Lines() { print(); }
    Lines(const Lines&) = delete;
    Lines& operator=(const Lines&) = delete;

    void add(const char* label, double value)
    {
        mText += label;
        mText += ' ';
        appendFixed(value, kDecimals, mText);
    }
    void space() { mText += ' '; }
    void end()
    {
        mText += '\n';
        if (mText.size() > kBlock) {
            print();
        }
    }

private:
    static constexpr int kDecimals = 6;
    static constexpr std::size_t kBlock = 1U << 16U;

    void print()
    {
        Diagnostics::print("%s", mText.c_str());
        mText.clear();
    }

    std::string mText;
};

/// The parameter of an identifier; of several devices the last one's counts. Null if there is none.
const ProfileParameter* parameterOf(const Profile& profile, int id)
{
    const ProfileParameter* last = nullptr;
    for (const ProfileDevice& device : profile.data().devices) {
        const auto found = device.parameters.find(id);
        if (found != device.parameters.end()) {
            last = &found->second;
        }
    }
    return last;
}

void readSeries(const Series& series, const RecordData& record, const Profile& profile,
                int timeStep, Lines* log, KmlPath::Points& points)
{
    const ProfileParameter* p = parameterOf(profile, series.id);
    if (p == nullptr) {
        return;
    }
    auto recent = points.end(); // samples come in runs of one step
    forEachSample(record, *p, profile, [&](const ParameterSample& sample) {
        const double time = sample.entry().time;
        const double value = ProfileDecoder::metric(sample);
        if (log != nullptr && series.logged != nullptr) {
            log->add("time", time);
            log->space();
            log->add(series.logged, value);
            log->end();
        }
        const std::int32_t key = truncateToInt(time / timeStep);
        if (recent == points.end() || recent->first != key) {
            recent = points.try_emplace(key).first;
        }
        if (std::isfinite(value)) {
            recent->second.*series.member = value;
        }
    });
}

bool isMissing(double value)
{
    return value < kKmlLeastValid;
}

/// Gives missing values the last valid one seen; calls filled(value) for each.
template <class Iterator, class Filled>
void carryOn(Iterator from, Iterator to, Member member, Filled filled)
{
    double valid = kKmlMissing;
    for (; from != to; ++from) {
        double& value = from->second.*member;
        if (!isMissing(value)) {
            valid = value;
        } else if (!isMissing(valid)) {
            value = valid;
            filled(value);
        }
    }
}

} // namespace

KmlPath::KmlPath(const RecordData& record, const Profile& profile, int timeStep, Log log)
{
    gather(record, profile, timeStep, log);
    fillGaps(log);
    // Gaps are filled, so that one point shows for all whether there are positions.
    if (!mPoints.empty() && (isMissing(mPoints.begin()->second.latitude) ||
                             isMissing(mPoints.begin()->second.longitude))) {
        mPoints.clear();
    }
}

void KmlPath::gather(const RecordData& record, const Profile& profile, int timeStep, Log log)
{
    Lines lines;
    for (const Series& series : {kLatitude, kLongitude, kAltitude}) {
        readSeries(series, record, profile, timeStep, log == Log::On ? &lines : nullptr, mPoints);
    }
}

void KmlPath::fillGaps(Log log)
{
    Lines lines;
    for (const Series& series : {kLatitude, kLongitude, kAltitude}) {
        carryOn(mPoints.begin(), mPoints.end(), series.member, [](double /*value*/) {});
    }
    const auto logged = [&](double longitude) {
        if (log == Log::On) {
            lines.add("new lons", longitude);
            lines.end();
        }
    };
    carryOn(mPoints.rbegin(), mPoints.rend(), kLatitude.member, [](double /*value*/) {});
    carryOn(mPoints.rbegin(), mPoints.rend(), kLongitude.member, logged);
    carryOn(mPoints.rbegin(), mPoints.rend(), kAltitude.member, [](double /*value*/) {});
}

const KmlExportData* KmlPath::at(std::int32_t key) const
{
    if (mPoints.empty()) {
        return nullptr;
    }
    const auto after = mPoints.upper_bound(key);
    return after == mPoints.begin() ? &after->second : &std::prev(after)->second;
}

const KmlExportData* KmlPath::firstOf(std::int64_t key, std::int64_t count) const
{
    const std::int32_t first = truncateToInt(static_cast<double>(key));
    const auto found = mPoints.lower_bound(first);
    if (found != mPoints.end() && found->first < key + count) {
        return &found->second;
    }
    return at(first);
}

} // namespace VELIX
