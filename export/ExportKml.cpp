#include "export/ExportKml.h"

#include "card/CardContainer.h"
#include "card/SampleWalk.h"
#include "core/Progress.h"
#include "core/Truncate.h"
#include "export/KmlDocument.h"
#include "export/KmzArchive.h"
#include "export/OutputFile.h"
#include "profile/Profile.h"

#include <QIODevice>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>

namespace VELIX {

namespace {

constexpr int kLargestAlpha = 255;

// Per cents of an export at which its parts end.
constexpr double kPathRead = 20.0;
constexpr double kMarksMade = 50.0;
constexpr double kMarksWritten = 85.0;

/// A settings file can hold any number; what cannot be drawn counts as the default.
KmlExportOptions validOptions(const KmlExportOptions& options)
{
    const KmlExportOptions defaults;
    KmlExportOptions valid = options;
    const auto atLeastOne = [](int& value, int fallback) { value = value >= 1 ? value : fallback; };
    atLeastOne(valid.timeStep, defaults.timeStep);
    atLeastOne(valid.lineWidth, defaults.lineWidth);
    atLeastOne(valid.placeMarkInterval, defaults.placeMarkInterval);
    valid.lineAlpha = std::clamp(options.lineAlpha, 0, kLargestAlpha);
    valid.polygonAlpha = std::clamp(options.polygonAlpha, 0, kLargestAlpha);
    return valid;
}

QString timeOfDay(double seconds)
{
    constexpr int kWithoutMilliseconds = 8;
    return CardContainer::time(seconds).left(kWithoutMilliseconds);
}

bool isZipped(const KmlExportOptions& options)
{
    return QString::fromStdString(options.fileName)
        .endsWith(QLatin1String(".kmz"), Qt::CaseInsensitive);
}

/// Calls visit(key, sample) for the first sample of a parameter in the span of each placemark.
template <class Visit>
void firstOfEachSpan(const RecordData& record, const ProfileParameter& p,
                     const KmlExportOptions& options, const Profile& profile, Visit visit)
{
    std::set<std::int32_t> seen;
    auto recent = seen.end(); // samples come in runs of one span
    forEachSample(record, p, profile, [&](const ParameterSample& sample) {
        const std::int32_t key =
            truncateToInt(sample.entry().time / options.timeStep / options.placeMarkInterval);
        bool first = recent == seen.end() || *recent != key;
        if (first) {
            std::tie(recent, first) = seen.insert(key);
        }
        if (first) {
            visit(key, sample);
        }
    });
}

std::size_t eventCount(const RecordData& record, const KmlExportOptions& options)
{
    if (!options.errorMarkOn) {
        return 0;
    }
    return (options.showLimit ? record.limits.size() : 0) +
           (options.showWarning ? record.warnings.size() : 0);
}

/// Makes one document; each step is false once the export is cancelled.
class KmlWriter
{
public:
    KmlWriter(const RecordData& record, const KmlExportOptions& options, const Profile& profile,
              Progress& progress)
        : mRecord(record),
          mOptions(options),
          mProfile(profile),
          mProgress(progress),
          mPath(record, profile, options.timeStep, KmlPath::Log::On)
    {}

    bool exportPlaceMarks();
    bool exportErrors();
    bool exportFile(QIODevice& out);

private:
    void addParameter(const ProfileParameter& p);
    template <class Event>
    void addEvents(const std::vector<Event>& events);

    const RecordData& mRecord;
    const KmlExportOptions& mOptions;
    const Profile& mProfile;
    Progress& mProgress;
    KmlPath mPath;
    std::map<std::int32_t, KmlExportPlacemark> mPlacemarks;
    std::vector<KmlExportError> mErrors;
};

bool KmlWriter::exportPlaceMarks()
{
    if (!mOptions.placeMarkOn || mPath.points().empty()) {
        return mProgress.reach(kMarksMade);
    }
    std::size_t done = 0;
    for (const ProfileParameter* p : mOptions.parameters) {
        if (!mProgress.reach(kPathRead, kMarksMade, done++, mOptions.parameters.size())) {
            return false;
        }
        addParameter(*p);
    }
    return mProgress.reach(kMarksMade);
}

void KmlWriter::addParameter(const ProfileParameter& p)
{
    const std::string unit =
        " [" + mProfile.format(p).unit(NumberFormat::EUnitOf::Text).toStdString() + ']';
    const ProfileDecoder decoder = mProfile.decoder();
    std::string text;
    firstOfEachSpan(
        mRecord, p, mOptions, mProfile, [&](std::int32_t key, const ParameterSample& sample) {
            const auto [at, created] = mPlacemarks.try_emplace(key);
            KmlExportPlacemark& mark = at->second;
            if (created) {
                const std::int64_t firstPoint = std::int64_t{key} * mOptions.placeMarkInterval;
                mark.name = timeOfDay(static_cast<double>(firstPoint) * mOptions.timeStep);
                mark.position = *mPath.firstOf(firstPoint, mOptions.placeMarkInterval);
            }
            text.clear();
            decoder.appendText(sample, text);
            text += unit;
            mark.values.push_back({p.fullName, p.name, QString::fromStdString(text)});
        });
}

bool KmlWriter::exportErrors()
{
    if (mOptions.errorMarkOn && !mPath.points().empty()) {
        if (mOptions.showLimit) {
            addEvents(mRecord.limits);
        }
        if (mOptions.showWarning) {
            addEvents(mRecord.warnings);
        }
    }
    return mProgress.reach(kMarksMade);
}

template <class Event>
void KmlWriter::addEvents(const std::vector<Event>& events)
{
    for (const Event& event : events) {
        const QString label = QString::fromStdString(event.name);
        KmlExportError error;
        error.time = event.time;
        error.name = timeOfDay(event.time);
        error.position = *mPath.at(truncateToInt(event.time / mOptions.timeStep));
        error.values = {{label, label, QString::fromStdString(event.value)}};
        mErrors.push_back(std::move(error));
    }
}

bool KmlWriter::exportFile(QIODevice& out)
{
    KmlDocument document(mOptions,
                         QStringLiteral("VELIX Flightpath ") +
                             mRecord.startDateTime.toString(QStringLiteral("d.M.yyyy h:mm:ss")));
    const std::size_t all = mPlacemarks.size() + mErrors.size();
    std::size_t done = 0;
    for (const auto& [key, mark] : mPlacemarks) {
        document.addPlacemark(mark);
        if (!mProgress.reach(kMarksMade, kMarksWritten, ++done, all)) {
            return false;
        }
    }
    for (const KmlExportError& error : mErrors) {
        document.addEvent(error);
        if (!mProgress.reach(kMarksMade, kMarksWritten, ++done, all)) {
            return false;
        }
    }
    document.addPath(mPath.points());
    const QByteArray text = document.text();
    return isZipped(mOptions) ? writeKmz(text, out) : out.write(text) == text.size();
}

} // namespace

ExportKml::ExportKml(const Profile& profile) : mProfile(profile) {}

bool ExportKml::writeDocument(const RecordData& record, const KmlExportOptions& options,
                              QIODevice& out, Progress& progress)
{
    const KmlExportOptions valid = validOptions(options);
    bool written = false;
    if (progress.reach(0.0)) {
        KmlWriter writer(record, valid, mProfile, progress);
        written = progress.reach(kPathRead) && writer.exportPlaceMarks() && writer.exportErrors() &&
                  writer.exportFile(out) && progress.reach(100.0);
    }
    return written;
}

int ExportKml::exportData(const RecordData& record, const KmlExportOptions& options)
{
    Progress nobody;
    return exportData(record, options, nobody).ok ? 1 : 0;
}

Outcome ExportKml::exportData(const RecordData& record, const KmlExportOptions& options,
                              Progress& progress)
{
    return writeExport(
        outputPath(options.directory, options.fileName),
        [&](QIODevice& out) { return writeDocument(record, options, out, progress); }, progress);
}

KmlSummary ExportKml::summary(const RecordData& record, const KmlExportOptions& options)
{
    const KmlExportOptions valid = validOptions(options);
    const KmlPath path(record, mProfile, valid.timeStep, KmlPath::Log::Off);
    KmlSummary summary;
    summary.pathPoints = path.points().size();
    summary.hasPositions = summary.pathPoints > 0;
    if (!summary.hasPositions) {
        return summary;
    }
    summary.eventMarks = eventCount(record, valid);
    if (valid.placeMarkOn) {
        std::set<std::int32_t> keys;
        for (const ProfileParameter* p : valid.parameters) {
            firstOfEachSpan(
                record, *p, valid, mProfile,
                [&keys](std::int32_t key, const ParameterSample& /*sample*/) { keys.insert(key); });
        }
        summary.parameterMarks = keys.size();
    }
    return summary;
}

} // namespace VELIX
