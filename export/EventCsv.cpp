#include "export/EventCsv.h"

#include "card/CardContainer.h"
#include "card/RecordEvent.h"

#include <QByteArray>
#include <QIODevice>

#include <string>
#include <string_view>

namespace VELIX {

namespace {

constexpr char kDelimiter = ';';

void appendField(std::string_view text, QByteArray& line)
{
    // The label after a value may be empty; the blank between them says nothing in a table.
    while (!text.empty() && text.back() == ' ') {
        text.remove_suffix(1);
    }
    if (text.find_first_of(";\"\r\n") == std::string_view::npos) {
        line.append(text.data(), static_cast<int>(text.size()));
        return;
    }
    line.append('"');
    for (const char c : text) {
        line.append(c);
        if (c == '"') {
            line.append('"');
        }
    }
    line.append('"');
}

} // namespace

bool writeEventCsv(const std::vector<const RecordLimit*>& events, QIODevice& out)
{
    QByteArray table("Time;Parameter;Value\n");
    for (const RecordLimit* event : events) {
        table.append(CardContainer::time(event->time).toLatin1());
        table.append(kDelimiter);
        appendField(event->name, table);
        table.append(kDelimiter);
        appendField(event->value, table);
        table.append('\n');
    }
    return out.write(table) == table.size();
}

} // namespace VELIX
