#pragma once

#include "export/ExportProgress.h"
#include "export/KmlExportOptions.h"

#include <QString>

#include <cstddef>

class QIODevice;

namespace VELIX {

class Profile;
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
    explicit ExportKml(Profile& profile);

    void setProgress(ExportProgress progress);
    /// Writes the file of the options; 0 if it was not written (an old file is then kept).
    int exportData(const RecordData& record, const KmlExportOptions& options);
    /// The system's reason for the last failure, in its own words; none after a cancellation.
    const QString& lastError() const { return mLastError; }
    /// Whether the last export was cancelled.
    bool cancelled() const { return mCancelled; }
    /// Writes the document to an open device, zipped if the options' file name ends in ".kmz".
    /// False if it was cancelled or the device does not take it all.
    bool writeDocument(const RecordData& record, const KmlExportOptions& options, QIODevice& out);
    /// What exportData() would write; takes some milliseconds for an hour of flight.
    KmlSummary summary(const RecordData& record, const KmlExportOptions& options);

private:
    Profile& mProfile;
    ExportProgress mProgress;
    QString mLastError;
    bool mCancelled = false;
};

} // namespace VELIX
