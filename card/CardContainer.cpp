#include "card/CardContainer.h"

#include "card/CardListing.h"
#include "card/FlightFinder.h"
#include "card/FlightPath.h"
#include "card/FlightStatisticCalculator.h"
#include "card/FreeMemory.h"
#include "core/Diagnostics.h"
#include "core/Progress.h"
#include "core/Timer.h"
#include "profile/Profile.h"

#include <QDir>

#include <algorithm>
#include <cmath>
#include <utility>

namespace VELIX {

CardContainer& CardContainer::instance()
{
    static CardContainer container(Profile::instance());
    return container;
}

CardContainer::CardContainer(const Profile& profile)
    : mProfile(profile), mLoaded(std::make_shared<RecordData>()), mWorking(mLoaded)
{}

void CardContainer::clear()
{
    mRecordFiles.clear();
    mCycles.clear();
}

bool CardContainer::readContainer(const QString& path)
{
    Progress nobody;
    return readContainer(path, nobody).ok;
}

Outcome CardContainer::readContainer(const QString& path, Progress& progress)
{
    if (path.isEmpty() || !QDir(path).exists()) {
        return Outcome::failure(
            tr("The folder %1 cannot be opened. Is the card in its reader?").arg(path));
    }
    std::map<QString, RecordFile> files = listRecordFiles(path, progress);
    if (progress.cancelled()) {
        return Outcome::cancellation();
    }
    clear();
    mName = path;
    mRecordFiles = std::move(files);
    calcCycles();
    return Outcome::success();
}

void CardContainer::calcCycles()
{
    mCycles = groupIntoCycles(mRecordFiles);
}

const RecordFile* CardContainer::listedFile(const QString& name) const
{
    const auto found = mRecordFiles.find(name);
    const bool listed =
        found != mRecordFiles.end() && !found->second.recordInfo().fileName.isEmpty();
    return listed ? &found->second : nullptr;
}

std::uint64_t CardContainer::memoryLimit() const
{
    return mMemoryLimit != 0 ? mMemoryLimit : freeMemory() / 2;
}

int CardContainer::loadFiles(const std::list<QString>& names)
{
    Progress nobody;
    return loadFiles(names, nobody).ok ? 1 : 0;
}

Outcome CardContainer::loadFiles(const std::list<QString>& names, Progress& progress)
{
    std::vector<RecordLoader::Source> sources;
    for (const QString& path : names) {
        sources.push_back({path, listedFile(name(path))});
    }
    LoadedRecord record;
    Outcome outcome = RecordLoader(memoryLimit(), progress).load(sources, record);
    if (record.data != nullptr) {
        for (const RecordLoader::Source& source : sources) {
            mRecordFiles.try_emplace(name(source.name)); // unknown names are listed from then on
        }
        take(std::move(record));
    }
    return outcome;
}

void CardContainer::take(LoadedRecord record)
{
    mLoaded = std::move(record.data);
    mWorking = mLoaded;
    mStartDateTime = record.startDateTime;
    mStartTime = record.startTime;
    mStopTime = record.stopTime;
    mIsLoaded = record.isLoaded;
    calcIndex();
    calcFlightPath();
}

void CardContainer::calcIndex()
{
    const Timer timer("calcIndex");
    mLoaded->finish(mStopTime);
}

int CardContainer::loadCycle(std::uint32_t cycle, int flight)
{
    if (mCycles.count(cycle) == 0) {
        return 0;
    }
    Progress nobody;
    (void)loadCycle(cycle, flight, nobody); // a load that fails is none of a missing cycle
    return 1;
}

Outcome CardContainer::loadCycle(std::uint32_t cycle, int flight, Progress& progress)
{
    const auto found = mCycles.find(cycle);
    if (found == mCycles.end()) {
        return Outcome::failure(tr("The card has no cycle %1.").arg(cycle));
    }
    std::vector<RecordLoader::Source> sources;
    for (const RecordFile& file : found->second.files) {
        sources.push_back({file.recordInfo().fileName, &file});
    }
    LoadedRecord record;
    Outcome outcome = RecordLoader(memoryLimit(), progress).load(sources, record);
    if (record.data == nullptr) {
        return outcome; // without it, the flight would be cut out of another record
    }
    take(std::move(record));
    calcFlights(found->second);
    const std::vector<RecordFlight>& flights = found->second.flights;
    if (flight >= 0 && static_cast<std::size_t>(flight) < flights.size()) {
        const RecordFlight& chosen = flights[static_cast<std::size_t>(flight)];
        mWorking = RecordData::narrowed(mLoaded, chosen.startTime, chosen.stopTime);
        mWorking->flight = chosen;
        calcFlightPath();
    } else {
        mWorking->cycleFlights = flights;
    }
    return outcome;
}

void CardContainer::calcFlights(RecordCycle& cycle)
{
    cycle.flights.clear();
    const ProfileParameter speed =
        mProfile.getParameterFromVelixType(QStringLiteral("GroundSpeed"));
    const ProfileDecoder decoder = mProfile.decoder();
    FlightFinder finder;
    for (const RecordEntry& entry : mLoaded->entries(speed)) {
        const auto found = finder.add(entry.time, decoder.number(ParameterSample(entry, speed)));
        if (!found) {
            continue;
        }
        RecordFlight flight;
        flight.startTime = found->startTime;
        flight.stopTime = found->stopTime;
        flight.takeoffTime = found->takeoffTime;
        flight.landingTime = found->landingTime;
        flight.dateTime = cycle.dateTime.addSecs(static_cast<qint64>(found->takeoffTime));
        calcFlightStatistic(flight);
        cycle.flights.push_back(flight);
    }
    for (const RecordFlight& flight : cycle.flights) {
        Diagnostics::print(
            "Flight %f -> %f <%s>\n", flight.startTime, flight.stopTime,
            flight.dateTime.toString(QStringLiteral("hh:mm:ss")).toUtf8().constData());
    }
}

void CardContainer::calcFlightStatistic(RecordFlight& flight)
{
    FlightStatisticCalculator(*mLoaded, mProfile, [this](const ProfileParameter& p, double time) {
        return getValue(p, time);
    }).fill(flight);
}

void CardContainer::calcFlightPath()
{
    mFlightPath = VELIX::flightPath(*mWorking, mProfile);
}

double CardContainer::getValue(const ProfileParameter& p, double time, int& state, QColor& color)
{
    const RecordIdList& list = mLoaded->list(p);
    if (!(time < static_cast<double>(list.indexSize))) {
        return 0.0;
    }
    const std::size_t after = list.entries.firstAtOrAfter(time);
    if (after == list.entries.size()) {
        return 0.0;
    }
    const RecordEntry& entry = list.entries[after == 0 ? 0 : after - 1];
    return mProfile.decoder().number(ParameterSample(entry, p), state, color);
}

double CardContainer::getValue(const ProfileParameter& p, double time)
{
    int state = 0;
    QColor color;
    return getValue(p, time, state, color);
}

QString CardContainer::name(const QString& path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

QString CardContainer::time(double seconds)
{
    constexpr double kDay = 86400000.0; // ms
    double milliseconds = std::fmod(std::trunc(seconds * 1000.0), kDay);
    if (!std::isfinite(milliseconds)) {
        milliseconds = 0.0;
    } else if (milliseconds < 0.0) {
        milliseconds += kDay;
    }
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(milliseconds))
        .toString(QStringLiteral("hh:mm:ss.zzz"));
}

double CardContainer::calcDistance(double lat1, double lon1, double lat2, double lon2)
{
    return greatCircleDistance(lat1, lon1, lat2, lon2);
}

void CardContainer::resampleData(double step, const std::vector<Sample>& input,
                                 std::vector<Sample>& output)
{
    output.clear();
    if (input.size() < 2 || !(step > 0.0)) {
        output = input;
        return;
    }
    std::size_t right = 1;
    const double first = input.front().time;
    for (std::size_t i = 0; first + static_cast<double>(i) * step <= input.back().time; ++i) {
        const double at = first + static_cast<double>(i) * step;
        while (right + 1 < input.size() && input[right].time < at) {
            ++right;
        }
        const Sample& left = input[right - 1];
        const double width = input[right].time - left.time;
        const double fraction = width > 0.0 ? std::max(0.0, (at - left.time) / width) : 0.0;
        output.push_back({at, left.value + fraction * (input[right].value - left.value)});
    }
}

} // namespace VELIX
