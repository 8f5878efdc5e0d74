#pragma once

#include <string>
#include <string_view>

namespace VELIX {

/// Appends one field of a delimited table to a line, quoted where a reader of the table needs it.
void appendCsvField(std::string_view text, char delimiter, std::string& line);

} // namespace VELIX
