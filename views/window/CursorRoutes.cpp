#include "views/window/CursorRoutes.h"

#include "views/common/DataView.h"

namespace VELIX {

namespace {

using enum EView;

constexpr CursorRoutes::Route kEverywhere = {Table, Graph,   Instrument, FaultMatrix,
                                             Limit, Warning, Map};
constexpr CursorRoutes::Route kFromGraph = {Table, Instrument, FaultMatrix, Limit, Warning, Map};
constexpr CursorRoutes::Route kFromTable = {Graph, Instrument, FaultMatrix, Limit, Warning, Map};
constexpr CursorRoutes::Route kFromLimits = {Graph, Instrument, FaultMatrix, Table, Warning, Map};
// Lamps are looked up one after the other; the map would only jump to and fro, so it stays.
constexpr CursorRoutes::Route kFromWarnings = {Graph, Instrument, FaultMatrix, Table, Limit};
constexpr CursorRoutes::Route kAfterReload = {Table, Instrument, Graph, FaultMatrix,
                                              Limit, Warning,    Map};

constexpr CursorRoutes::Route kRecord = {Table,     Graph, Instrument, FaultMatrix,
                                         Statistic, Limit, Warning,    Map};
constexpr CursorRoutes::Route kProfile = {Table,   Graph, FaultMatrix, Limit,
                                          Warning, Map,   Instrument};

} // namespace

CursorRoutes::Route CursorRoutes::route(ECursorSource source)
{
    switch (source) {
    case ECursorSource::Replay:
    case ECursorSource::TimeEdit:
        return kEverywhere;
    case ECursorSource::Graph:
        return kFromGraph;
    case ECursorSource::Table:
        return kFromTable;
    case ECursorSource::LimitList:
        return kFromLimits;
    case ECursorSource::WarningList:
        return kFromWarnings;
    case ECursorSource::Reload:
        return kAfterReload;
    }
    return {};
}

void CursorRoutes::setTime(ECursorSource source, double seconds) const
{
    for (const EView target : route(source)) {
        view(target)->setTime(seconds);
    }
}

void CursorRoutes::updateRecord(RecordData* record) const
{
    for (const EView target : kRecord) {
        view(target)->updateRecord(record);
    }
}

void CursorRoutes::updateProfile() const
{
    for (const EView target : kProfile) {
        view(target)->updateProfile();
    }
}

} // namespace VELIX
