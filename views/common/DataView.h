#pragma once

namespace VELIX {

class RecordData;

/// What every view in the data window can do.
///
/// Views never call each other: one that moves the cursor itself emits a signal, and the data
/// window informs the others.
class DataView
{
public:
    virtual ~DataView() = default;

    /// Moves to the common cursor: seconds on the record's time axis, also outside the record.
    virtual void setTime(double seconds) = 0;
    /// Takes the record to show, null for none. It stays valid until the next call.
    virtual void updateRecord(RecordData* record) = 0;
    /// The profile, its unit system or the user's selection changed; pointers into it are stale.
    virtual void updateProfile() = 0;
};

} // namespace VELIX
