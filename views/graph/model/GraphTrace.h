#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

namespace VELIX {

/// The samples of one trace of the graph, and the frames that are drawn of them.
///
/// Times are seconds on the record's time axis. Samples are kept in the order of arrival; their
/// times normally grow, but may be equal or run backwards: every look-up then still gives what a
/// walk over all samples would. A sample that is not finite is stored, but is a gap: it takes no
/// part in ranges, averages and frames.
class GraphTrace
{
public:
    /// A stored sample.
    struct EntryType
    {
        double time = 0.0;  ///< seconds
        double value = 0.0; ///< may be NaN or infinite: a gap
        bool hold = false; ///< true: not recorded, but the last value repeated to reach the present
    };

    /// All samples of (at most) one pixel column, decimated to what can be seen of them.
    ///
    /// | state | drawn of it at startTime |
    /// |---|---|
    /// | 2 | slotA, the only value |
    /// | 3 | slotA, then slotB, the two values in order of arrival |
    /// | 4 | slotA, slotB, then lastValue: more than two values |
    ///
    /// Slots A and B start as the first two values and only then act as running minimum and
    /// maximum, so that A may be above B.
    struct FrameType
    {
        int state = 0;
        double startTime = 0.0; ///< seconds, the time of the frame's first sample
        double slotA = 0.0;
        double slotB = 0.0;     ///< valid from state 3 on
        double lastValue = 0.0; ///< valid in state 4
        bool hold = false;      ///< true: repeated values only
        bool gapBefore = false; ///< true: no line from the previous frame to this one
    };

    /// Minimum, maximum and mean of the finite samples of a stretch of time; all zero when count is
    /// 0.
    struct Statistics
    {
        std::size_t count = 0;
        double minimum = 0.0;
        double maximum = 0.0;
        double average = 0.0; ///< arithmetic mean of the samples, not weighted with time
    };

    /// Most samples that a trace keeps.
    static constexpr std::size_t kMaxEntries = 500'000'000;

    explicit GraphTrace(std::size_t entryLimit = kMaxEntries);

    /// Stores a sample and adds it to the frames.
    /// A sample beyond the limit is not kept, but widens the range and reaches the frames like any
    /// other.
    /// @param time finite, in seconds, 0 to 86400 as GraphModel::setTime gives it
    /// @param frameSpan the seconds that one pixel column covers
    /// @param xmax end of the visible range: what comes after the first frame beyond it gets no
    /// frames, so that those of a long record do not pile up outside the plot
    void putValue(double time, double value, bool hold, double frameSpan, double xmax);

    /// Sample and hold: the value of the sample before the first one at or after @p t, or of that
    /// one itself when it is the very first. A sample exactly at @p t therefore yields its
    /// predecessor.
    /// @param v the value, which may be NaN or infinite (a gap); 0 on failure
    /// @return false without samples, or for a time outside firstTime() to latestTime()
    [[nodiscard]] bool getValue(double t, double& v) const;

    /// Rebuilds the frames for a visible range: from the last sample before @p xmin to the first
    /// frame beyond
    /// @p xmax, so that lines run to the very edges of the plot.
    void recalcFrameBuffer(double xmin, double xmax, double frameSpan);

    /// Drops the frames that are wholly left of @p xmin but for the last of them, so that frames of
    /// a long live recording do not pile up outside the plot.
    void dropFramesBefore(double xmin);

    /// Statistics of the samples with @p from <= time <= @p to. Takes microseconds also for
    /// millions of samples.
    [[nodiscard]] Statistics statistics(double from, double to) const;

    /// Position in entries() of the first sample at or after @p t; entries().size() when there is
    /// none.
    [[nodiscard]] std::size_t firstAtOrAfter(double t) const;

    /// Forgets all samples, frames and ranges.
    void clear();

    [[nodiscard]] bool isEmpty() const { return mEntries.empty(); }
    [[nodiscard]] const std::deque<EntryType>& entries() const { return mEntries; }
    [[nodiscard]] const std::deque<FrameType>& frames() const { return mFrames; }

    /// Time of the first sample in seconds; 0 without samples.
    [[nodiscard]] double firstTime() const
    {
        return mEntries.empty() ? 0.0 : mEntries.front().time;
    }
    /// The largest sample time in seconds; 0 without samples.
    [[nodiscard]] double latestTime() const { return mLatestTime; }
    /// Whether there is a finite sample, so that minimum() and maximum() mean something.
    [[nodiscard]] bool hasRange() const { return mHasRange; }
    [[nodiscard]] double minimum() const { return mMinimum; }
    [[nodiscard]] double maximum() const { return mMaximum; }
    /// The value that arrived last, gap or not; 0 without samples.
    [[nodiscard]] double lastValue() const { return mLastValue; }

private:
    /// What whole stretches of kBlockSize samples have in common, so that long walks can step over
    /// them.
    struct Block
    {
        double earliest = 0.0; ///< smallest time, seconds
        double latest = 0.0;   ///< largest time, seconds
        double minimum = 0.0;  ///< of the finite samples, as all that follows
        double maximum = 0.0;
        double lastValue = 0.0;
        long double sum = 0.0L; ///< wide enough for sums of the largest doubles
        std::uint32_t finiteCount = 0;
        bool allHold = true;
    };
    static constexpr std::size_t kBlockSize = 256;

    void growSecondIndex(double time);
    void addToBlock(const EntryType& entry);
    void widenRange(double value);
    /// @return false when the sample joined the last frame
    bool addToFrameBuffer(const EntryType& entry, double frameSpan);
    [[nodiscard]] bool mergeBlock(std::size_t block, double xmax, double frameSpan);
    [[nodiscard]] std::size_t endOfBlock(std::size_t block) const;

    std::size_t mEntryLimit;
    std::deque<EntryType> mEntries;
    std::vector<Block> mBlocks;
    /// Number of samples stored before the first one of each whole second from mFirstSecond on.
    std::vector<std::uint32_t> mSecondIndex;
    std::int64_t mFirstSecond = 0;
    std::deque<FrameType> mFrames;
    bool mGapPending = false;
    bool mInOrder = true;
    bool mHasRange = false;
    double mLatestTime = 0.0;
    double mMinimum = 0.0;
    double mMaximum = 0.0;
    double mLastValue = 0.0;
};

} // namespace VELIX
