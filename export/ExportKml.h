#pragma once

#include "core/Outcome.h"
#include "export/KmlExportOptions.h"

#include <cstddef>

class QIODevice;

namespace VELIX {

class Profile;
class Progress;
class RecordData;

/// What a KML export would write.
struct KmlSummary
{
    bool hasPositions = false; ///< latitudes and longitudes are there, so that a path can be drawn
    std::size_t pathPoints = 0;
    std::size_t parameterMarks = 0;
    std::size_t eventMarks = 0;
};

/// Writes the flight of a record as a KML document: the path, placemarks with the values of
/// parameters, and placemarks of the events that the record holds.
class ExportKml
{
public:
    explicit ExportKml(const Profile& profile);

    /// Writes the file of the options. An export that fails, for the system's reason in its own
    /// words, or is cancelled keeps an old file.
    Outcome exportData(const RecordData& record, const KmlExportOptions& options,
                       Progress& progress);
    /// 1 for a success, else 0.
    int exportData(const RecordData& record, const KmlExportOptions& options);
    /// Writes the document to an open device, zipped if the options' file name ends in ".kmz".
    /// False if it was cancelled or the device does not take it all.
    bool writeDocument(const RecordData& record, const KmlExportOptions& options, QIODevice& out,
                       Progress& progress);
    /// Counts what exportData() would write; takes some milliseconds for an hour of flight.
    KmlSummary summary(const RecordData& record, const KmlExportOptions& options);

private:
    const Profile& mProfile;
};

} // namespace VELIX
