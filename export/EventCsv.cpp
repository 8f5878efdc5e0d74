#include "export/EventCsv.h"

#include "card/CardContainer.h"
#include "card/RecordEvent.h"
#include "export/CsvField.h"

#include <QIODevice>

#include <string>
#include <string_view>

namespace VELIX {

namespace {

constexpr char kDelimiter = ';';

// The label after a value may be empty; the blank between them says nothing in a table.
std::string_view withoutBlanks(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

} // namespace

bool writeEventCsv(const std::vector<const RecordLimit*>& events, QIODevice& out)
{
    std::string table("Time;Parameter;Value\n");
    for (const RecordLimit* event : events) {
        table += CardContainer::time(event->time).toStdString();
        table.push_back(kDelimiter);
        appendCsvField(withoutBlanks(event->name), kDelimiter, table);
        table.push_back(kDelimiter);
        appendCsvField(withoutBlanks(event->value), kDelimiter, table);
        table.push_back('\n');
    }
    const auto size = static_cast<qint64>(table.size());
    return out.write(table.data(), size) == size;
}

} // namespace VELIX
