#pragma once

#include "views/fault/ErrorColor.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace VELIX {

class EntryList;
class RecordData;
struct FaultMatrix;

/// When any bit of each error type of a fault matrix was set during a record, and where that is on
/// a bar of a given width that spans the record.
class FaultTimeline
{
public:
    /// A time from which on some bit of the type was set, or none.
    struct Change
    {
        float time = 0.0F; ///< seconds on the record's time axis
        bool state = false;
    };
    using Changes = std::vector<Change>;

    /// Some pixels of a bar, at least one.
    struct Span
    {
        int left = 0;
        int width = 0;
    };

    /// Takes a matrix and forgets the record. Bits outside the 32 of the error word are ignored.
    void setMatrix(const FaultMatrix& matrix);
    /// Takes a record, null for none, which must stay valid until the next call.
    void setRecord(const RecordData* record);

    bool hasRecord() const { return mRecord != nullptr; }
    /// Whether the record has samples of the matrix message.
    bool hasSamples() const;

    /// Returns the changes of a type (EErrorType from eErrorInfo to eErrorFault) by time. The last
    /// entry closes the list at the last sample; without samples the list is empty.
    const Changes& changes(int type) const;
    /// Returns where bits of the type were set, from left to right and without overlaps. What
    /// lasted less than a pixel takes one within the bar's frame, so that no short fault is lost.
    std::vector<Span> spans(int type, int width) const;

    /// Returns the pixel of a time, also outside of the bar; 0 without a record and for one of a
    /// single moment.
    int getX(float time, int width) const;
    /// Returns the time (s) at the left edge of a pixel; the record's start where getX() is always
    /// 0.
    double timeAt(int x, int width) const;
    /// Returns all bits that were set at some time within a pixel of the bar.
    std::uint32_t wordAt(int x, int width) const;

private:
    static constexpr std::size_t kTypes = 3;

    const EntryList& entries() const;
    void addSample(double time, std::uint32_t word);
    void close();

    std::uint32_t mId = 0;                      ///< CAN identifier of the matrix message
    std::array<std::uint32_t, kTypes> mMasks{}; ///< by type - 1: the bits assigned to it
    const RecordData* mRecord = nullptr;
    std::array<Changes, kTypes> mChanges; ///< by type - 1
    float mLastTime = 0.0F;               ///< seconds: of the sample added last
};

} // namespace VELIX
