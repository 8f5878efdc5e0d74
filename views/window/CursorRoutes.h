#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>

namespace VELIX {

class DataView;
class RecordData;

/// The views of the data window.
enum class EView {
    Table,
    Graph,
    Instrument,
    FaultMatrix,
    Limit,
    Warning,
    Statistic,
    Map,
};
inline constexpr std::size_t kViewCount = 8;

/// What moved the cursor.
enum class ECursorSource {
    Replay, ///< the clock, the position slider, stop and the keys
    TimeEdit,
    Graph,
    Table,
    LimitList,
    WarningList,
    Reload, ///< a new record or profile
};

/// Decides which views are informed of a change, and in which order: all traffic between views
/// goes through here.
class CursorRoutes
{
public:
    using Route = std::initializer_list<EView>;

    void setView(EView view, DataView& target) { mViews[static_cast<std::size_t>(view)] = &target; }

    void setTime(ECursorSource source, double seconds) const;
    void updateRecord(RecordData* record) const;
    void updateProfile() const;

    /// Returns the views that take a cursor time from a source.
    static Route route(ECursorSource source);

private:
    DataView* view(EView view) const { return mViews[static_cast<std::size_t>(view)]; }

    std::array<DataView*, kViewCount> mViews{};
};

} // namespace VELIX
