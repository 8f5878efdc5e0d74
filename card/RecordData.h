#pragma once

#include "card/ChunkArena.h"
#include "card/RecordEvent.h"
#include "card/RecordFlight.h"
#include "card/RecordIdList.h"

#include <QDateTime>

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <vector>

namespace VELIX {

struct FaultMatrix;
struct ProfileParameter;

/// The entries of one or more record files, filed by CAN identifier, and what was found in them.
///
/// Two pseudo-identifiers collect the entries of source 0 and 1 across all identifiers.
class RecordData
{
public:
    static constexpr std::uint32_t kSource0Id = 0x7FFFFFFF;
    static constexpr std::uint32_t kSource1Id = 0x7FFFFFFE;

    using IdMap = std::map<std::uint32_t, RecordIdList>;

    RecordData() = default;
    RecordData(const RecordData&) = delete;
    RecordData& operator=(const RecordData&) = delete;

    const IdMap& ids() const { return mIds; }
    /// Returns the list of an identifier, or of that of a parameter or fault matrix; null if there
    /// is none.
    const RecordIdList* find(std::uint32_t id) const;
    const RecordIdList* find(const ProfileParameter& p) const;
    const RecordIdList* find(const FaultMatrix& matrix) const;
    /// Returns the same list's entries; an empty list if there are none.
    const EntryList& entries(std::uint32_t id) const;
    const EntryList& entries(const ProfileParameter& p) const;
    const EntryList& entries(const FaultMatrix& matrix) const;
    /// Returns the same list, created if absent.
    RecordIdList& list(std::uint32_t id);
    RecordIdList& list(const ProfileParameter& p);

    /// Files an entry under its identifier and in the collective list of its source.
    void append(const RecordEntry& entry);
    /// Derives what needs all entries, after the last append: `last` of each list and the seconds
    /// that look-ups cover for a stop time (s).
    void finish(double indexStop);
    /// Returns roughly the bytes of memory that the entries and their lists take. Damaged files can
    /// give every entry an identifier of its own, whose list takes more than the entry.
    std::size_t memory() const;
    /// Forgets entries, events and the chosen flight.
    void clear();

    /// Returns the entries of `whole` whose time is in [from, to], boundaries included. They are
    /// shared, not copied; the result keeps `whole` alive.
    static std::shared_ptr<RecordData> narrowed(std::shared_ptr<const RecordData> whole,
                                                double from, double to);

    std::uint32_t entryCount = 0; ///< entries appended, collective lists not counted
    QDateTime startDateTime;      ///< date of the first file, UTC; invalid if unknown
    double startTime = 0.0;       ///< s on the unit's clock: earliest entry or start of the flight
    double stopTime = 0.0;        ///< s on the unit's clock: latest entry or end of the flight
    double cursorTime = 0.0;      ///< s: the common time cursor, kept by the data window
    std::vector<RecordLimit> limits;     ///< by time
    std::vector<RecordWarning> warnings; ///< by time
    RecordFlight flight; ///< the chosen flight; its statistic is not valid if none was chosen
    std::vector<RecordFlight> cycleFlights; ///< of a whole cycle; none for one flight or files

private:
    RecordIdList& recentList(std::uint32_t id);

    std::shared_ptr<const RecordData> mWhole; ///< owner of the entries of a narrowed record
    ChunkArena mArena;
    IdMap mIds;
    struct Recent
    {
        std::uint32_t id = 0;
        RecordIdList* list = nullptr;
    };
    std::array<Recent, 1024> mRecent{};
    std::array<RecordIdList*, 2> mCollective{};
};

} // namespace VELIX
