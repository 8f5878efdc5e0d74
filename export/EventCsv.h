#pragma once

#include <vector>

class QIODevice;

namespace VELIX {

struct RecordLimit;

/// Writes a list of events as a table, UTF-8: one line of time of day, parameter and value for
/// each, separated by semicolons, fields quoted where a reader of the table needs it. False if
/// the device does not take it all.
bool writeEventCsv(const std::vector<const RecordLimit*>& events, QIODevice& out);

} // namespace VELIX
