#include "export/CsvField.h"

namespace VELIX {

void appendCsvField(std::string_view text, char delimiter, std::string& line)
{
    const char special[] = {delimiter, '"', '\r', '\n'};
    if (text.find_first_of({special, sizeof(special)}) == std::string_view::npos) {
        line += text;
        return;
    }
    line.push_back('"');
    for (const char c : text) {
        line.append(c == '"' ? 2 : 1, c);
    }
    line.push_back('"');
}

} // namespace VELIX
