#include "gui/LoadSummary.h"

#include "card/CardContainer.h"

#include <QLocale>

namespace VELIX {

QString LoadSummary::cycle(const CardContainer& card, std::uint32_t cycle, int flight)
{
    const auto found = card.recordCycles().find(cycle);
    const int flights =
        found == card.recordCycles().end() ? 0 : static_cast<int>(found->second.flights.size());
    if (flight < 0 || flight >= flights) { // an unknown flight loads the whole cycle
        return tr("Cycle %1").arg(cycle);
    }
    return tr("Cycle %1, flight %2").arg(cycle).arg(flight + 1);
}

QString LoadSummary::files(std::size_t count)
{
    return count == 1 ? tr("1 file") : tr("%1 files").arg(count);
}

QString LoadSummary::withCounts(const QString& name, const CardContainer& card)
{
    const RecordData& record = card.recordData();
    std::size_t identifiers = record.ids().size();
    for (const std::uint32_t collective : {RecordData::kSource0Id, RecordData::kSource1Id}) {
        identifiers -= record.ids().count(collective);
    }
    const QLocale locale;
    return tr("%1: %2 samples of %3 identifiers")
        .arg(name, locale.toString(record.entryCount),
             locale.toString(static_cast<qulonglong>(identifiers)));
}

} // namespace VELIX
