#pragma once

#include "card/FlightPathPoint.h"
#include "card/RecordCycle.h"
#include "card/RecordData.h"
#include "card/RecordFile.h"
#include "card/RecordLoader.h"

#include <QColor>
#include <QCoreApplication>
#include <QDateTime>
#include <QString>

#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <vector>

namespace VELIX {

class Profile;
class Progress;
struct ProfileParameter;

/// One data card: its record files, power cycles and flights, and the data loaded from it.
///
/// Decodes with the profile that it is made with. instance() is the card of the running program.
class CardContainer
{
    Q_DECLARE_TR_FUNCTIONS(VELIX::CardContainer)

public:
    struct Sample
    {
        double time = 0.0; ///< s
        double value = 0.0;
    };

    static CardContainer& instance();
    explicit CardContainer(const Profile& profile);

    /// Lists a card folder by the headers of its record files. Fails if there is no such folder;
    /// neither then nor when it is cancelled does anything change. The loaded data stays.
    Outcome readContainer(const QString& path, Progress& progress);
    bool readContainer(const QString& path);
    /// Forgets the listing: its files and its cycles. The loaded data stays.
    void clear();
    const QString& name() const { return mName; }
    const std::map<QString, RecordFile>& recordFiles() const { return mRecordFiles; }
    const std::map<std::uint32_t, RecordCycle>& recordCycles() const { return mCycles; }

    /// Loads files of the listing, by base name, in the order of the list. Succeeds if at least one
    /// could be read, with a reason if another one could not. The progress counts from 0 to 100 for
    /// each file. A load that is cancelled, or refused before anything is read, leaves what is
    /// loaded as it is.
    Outcome loadFiles(const std::list<QString>& names, Progress& progress);
    /// 1 for a success, else 0.
    int loadFiles(const std::list<QString>& names);
    /// Loads the files of a cycle, in the same way, and narrows the record to one flight if the
    /// index is that of a flight of it.
    Outcome loadCycle(std::uint32_t cycle, int flight, Progress& progress);
    /// 0 if there is no such cycle, else 1.
    int loadCycle(std::uint32_t cycle, int flight);
    /// Limits the bytes that a load may need; 0 (the default) is half of the free memory.
    void setMemoryLimit(std::uint64_t bytes) { mMemoryLimit = bytes; }

    /// The data that views and exports read: the loaded files, a cycle or one flight of it.
    RecordData& recordData() { return *mWorking; }
    const RecordData& recordData() const { return *mWorking; }
    /// The data of all loaded files, also while a flight is chosen.
    const RecordData& loadedData() const { return *mLoaded; }
    /// Whether at least one file was read into the loaded data; it may hold no entry.
    bool isLoaded() const { return mIsLoaded; }
    /// Whether a record with at least one entry is loaded.
    bool hasRecord() const { return mLoaded->entryCount > 0; }
    /// One point per latitude sample of the working data.
    const std::vector<FlightPathPoint>& flightPath() const { return mFlightPath; }
    const QDateTime& startDateTime() const { return mStartDateTime; }
    double startTime() const { return mStartTime; } ///< s: start of the first loaded file
    double stopTime() const { return mStopTime; }   ///< s: stop of the last loaded file

    /// Returns the value of a parameter at a time (s): that of the latest sample before it, or of
    /// the first sample; 0 beyond the last sample or the loaded time.
    double getValue(const ProfileParameter& p, double time, int& state, QColor& color);
    double getValue(const ProfileParameter& p, double time);

    void calcCycles();
    void calcFlights(RecordCycle& cycle);
    void calcFlightStatistic(RecordFlight& flight);
    void calcFlightPath();

    /// Returns the text after the last "/".
    static QString name(const QString& path);
    /// Returns the time of day "hh:mm:ss.zzz" of seconds since midnight; wraps after 24 hours.
    static QString time(double seconds);
    /// Returns the great-circle distance in metres between two points in degrees.
    static double calcDistance(double lat1, double lon1, double lat2, double lon2);
    /// Interpolates a series linearly at a fixed step (s).
    static void resampleData(double step, const std::vector<Sample>& input,
                             std::vector<Sample>& output);

private:
    const RecordFile* listedFile(const QString& name) const;
    std::uint64_t memoryLimit() const;
    void take(LoadedRecord record);
    void calcIndex();

    const Profile& mProfile;
    QString mName;
    std::map<QString, RecordFile> mRecordFiles;
    std::map<std::uint32_t, RecordCycle> mCycles;
    bool mIsLoaded = false;
    std::shared_ptr<RecordData> mLoaded;
    std::shared_ptr<RecordData> mWorking; ///< mLoaded itself unless a flight is chosen
    std::vector<FlightPathPoint> mFlightPath;
    QDateTime mStartDateTime;
    double mStartTime = 0.0;
    double mStopTime = 0.0;
    std::uint64_t mMemoryLimit = 0;
};

} // namespace VELIX
