#pragma once

#include "card/RecordCycle.h"
#include "card/RecordFile.h"

#include <QString>

#include <cstdint>
#include <map>

namespace VELIX {

class Progress;

/// Reads the headers of the record files in a folder and repairs the dates that they lack; by name.
/// Incomplete if the progress is cancelled. That reports 0 for each file and 100 at the end.
std::map<QString, RecordFile> listRecordFiles(const QString& folder, Progress& progress);

/// Groups the files of a card into cycles: each file whose header held no date opens one. By
/// number, from 1; 0 for the files ahead of the first cycle.
std::map<std::uint32_t, RecordCycle> groupIntoCycles(const std::map<QString, RecordFile>& files);

} // namespace VELIX
