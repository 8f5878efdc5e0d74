#include "card/CardContainer.h"

#include "card/FlightFinder.h"
#include "card/FlightPath.h"
#include "card/FlightStatisticCalculator.h"
#include "card/FreeMemory.h"
#include "core/Diagnostics.h"
#include "core/Progress.h"
#include "core/Timer.h"
#include "profile/Profile.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

constexpr std::uint64_t kBytesPerEntry = 72; // of memory, an entry with its place in two lists

bool isRecordFile(const QString& name)
{
    const QString extension = QFileInfo(name).suffix();
    return extension == QLatin1String("CAN") || extension == QLatin1String("can") ||
           extension == QLatin1String("xcb");
}

} // namespace

CardContainer& CardContainer::instance()
{
    static CardContainer container(Profile::instance());
    return container;
}

CardContainer::CardContainer(Profile& profile)
    : mProfile(profile), mLoaded(std::make_shared<RecordData>()), mWorking(mLoaded)
{}

void CardContainer::clear()
{
    mRecordFiles.clear();
}

bool CardContainer::readContainer(const QString& path)
{
    if (path.isEmpty() || !QDir(path).exists()) {
        return false;
    }
    mName = path;
    clear();
    listFiles(path);
    for (auto& [name, file] : mRecordFiles) {
        file.setDateInvalid(!file.recordInfo().dateTime.isValid());
    }
    repairDates();
    calcCycles();
    return true;
}

void CardContainer::listFiles(const QString& path)
{
    const QStringList names = QDir(path).entryList(QDir::Files, QDir::Unsorted);
    const int count = static_cast<int>(names.size());
    Diagnostics::print("CardContainer::readContainer: Path <%s> NrFiles %d\n",
                       path.toUtf8().constData(), count);
    for (int i = 0; i < count; ++i) {
        const QString& name = names[i];
        if (isRecordFile(name) && mRecordFiles.count(name) == 0) {
            mRecordFiles[name].readRecordInfo(QStringLiteral("%1/%2").arg(path, name));
        }
        Progress::report(i / count * 100); // whole files only: 0 until the listing is complete
    }
    Progress::report(100);
}

// Forward only: of a run of invalid dates just the last one finds a valid neighbour.
void CardContainer::repairDates()
{
    for (auto file = mRecordFiles.begin(); file != mRecordFiles.end(); ++file) {
        const auto next = std::next(file);
        const RecordInfo& info = file->second.recordInfo();
        if (next != mRecordFiles.end() && !info.dateTime.isValid()) {
            const auto stop = static_cast<qint64>(-(info.stopTime * 1000.0));
            file->second.setDateTime(next->second.recordInfo().dateTime.addMSecs(stop));
        }
    }
}

void CardContainer::calcCycles()
{
    mCycles.clear();
    std::uint32_t number = 0;
    for (const auto& [name, file] : mRecordFiles) {
        if (file.recordInfo().dateInvalid) {
            ++number;
            RecordCycle& opened = mCycles[number];
            opened.name = tr("Cycle %1").arg(number);
            opened.dateTime = file.recordInfo().dateTime;
            opened.files.clear();
        }
        RecordCycle& cycle = mCycles[number];
        cycle.files.push_back(file);
        cycle.stopTime = file.recordInfo().stopTime;
    }
}

bool CardContainer::fitsMemory(const std::list<QString>& names, std::uint64_t limit)
{
    std::uint64_t entries = 0;
    for (const QString& path : names) {
        const auto found = mRecordFiles.find(name(path));
        entries += found == mRecordFiles.end() ? 0 : found->second.recordInfo().sampleCount;
    }
    if (limit == 0 || entries * kBytesPerEntry <= limit) {
        return true;
    }
    mLastError = tr("The selection holds %1 samples, more than half of "
                    "the free memory can take. Select fewer files.")
                     .arg(QLocale().toString(static_cast<qulonglong>(entries)));
    Diagnostics::print("CardContainer::loadFiles: %llu entries exceed the memory limit\n",
                       static_cast<unsigned long long>(entries));
    return false;
}

// A card that was pulled out must not cost the record that is shown. Names that the card never
// listed are no sign of that: they load nothing, as ever.
bool CardContainer::canOpenAny(const std::list<QString>& names)
{
    bool anyListed = false;
    for (const QString& path : names) {
        const auto found = mRecordFiles.find(name(path));
        if (found != mRecordFiles.end() && !found->second.recordInfo().fileName.isEmpty()) {
            anyListed = true;
            if (QFileInfo(found->second.recordInfo().fileName).isReadable()) {
                return true;
            }
            RecordData none;
            found->second.readRecordData(none); // says what is wrong with the file
        }
    }
    return !anyListed;
}

int CardContainer::loadFiles(const std::list<QString>& names)
{
    return load(names) == ELoad::Some ? 1 : 0;
}

CardContainer::ELoad CardContainer::load(const std::list<QString>& names)
{
    mLastError.clear();
    const std::uint64_t limit = mMemoryLimit != 0 ? mMemoryLimit : freeMemory() / 2;
    if (!fitsMemory(names, limit)) {
        return ELoad::Refused; // what is loaded stays
    }
    if (!canOpenAny(names)) {
        mLastError = tr("None of the selected files can be opened. Is the card in its reader?");
        return ELoad::Refused;
    }
    mWorking.reset(); // free the old data before the new takes its room
    mLoaded = std::make_shared<RecordData>();
    mWorking = mLoaded;
    mStartDateTime = QDateTime();
    mStartTime = mStopTime = 0.0;

    bool first = true;
    ELoad result = ELoad::Nothing;
    for (const QString& file : names) {
        if (loadFile(file, first, limit)) {
            result = ELoad::Some;
        }
        first = false;
    }
    if (mLoaded->entryCount > 0) { // a file that ended early has still given what it had
        result = ELoad::Some;
    }
    mLoaded->startDateTime = mStartDateTime;
    mProfile.resetCoordinates();
    calcIndex();
    calcFlightPath();
    mIsLoaded = result == ELoad::Some;
    return result;
}

bool CardContainer::loadFile(const QString& path, bool first, std::uint64_t memoryLimit)
{
    RecordFile& file = mRecordFiles[name(path)];
    const RecordInfo listed = file.recordInfo();
    const bool known = !listed.fileName.isEmpty();
    const bool complete = known && file.readRecordData(*mLoaded, memoryLimit);
    file.setRecordInfo(listed); // the listing keeps the times of the file as a whole
    Diagnostics::print("load Files <%s>\n", path.toUtf8().constData());
    if (first) {
        mStartTime = listed.startTime;
        mStartDateTime = listed.dateTime;
        Diagnostics::print("date valid %d\n", listed.dateTime.isValid() ? 1 : 0);
    }
    mStopTime = listed.stopTime;
    if (!complete) {
        const QString text = known ? tr("The file %1 could not be read completely.")
                                   : tr("The card has no file %1.");
        mLastError = text.arg(name(path));
    }
    return complete;
}

void CardContainer::calcIndex()
{
    const Timer timer("calcIndex");
    mLoaded->finish(mStopTime);
}

int CardContainer::loadCycle(std::uint32_t cycle, int flight)
{
    const auto found = mCycles.find(cycle);
    if (found == mCycles.end()) {
        return 0;
    }
    mProfile.resetCoordinates();
    std::list<QString> names;
    for (const RecordFile& file : found->second.files) {
        names.push_back(file.recordInfo().fileName);
    }
    if (load(names) == ELoad::Refused) {
        return 1;
    }
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
    return 1;
}

void CardContainer::calcFlights(RecordCycle& cycle)
{
    cycle.flights.clear();
    const ProfileParameter speed =
        mProfile.getParameterFromVelixType(QStringLiteral("GroundSpeed"));
    FlightFinder finder;
    for (const RecordEntry& entry : mLoaded->entries(static_cast<std::uint32_t>(speed.id))) {
        const auto found = finder.add(entry.time, mProfile.getDouble(entry, speed, true));
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
    const RecordIdList& list = mLoaded->list(static_cast<std::uint32_t>(p.id));
    if (!(time < static_cast<double>(list.indexSize))) {
        return 0.0;
    }
    const std::size_t after = list.entries.firstAtOrAfter(time);
    if (after == list.entries.size()) {
        return 0.0;
    }
    mProfile.resetCoordinates(); // a single look-up has no position before it
    return mProfile.getDouble(list.entries[after == 0 ? 0 : after - 1], p, state, color, true);
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
