#include "views/graph/model/GraphTrace.h"

#include <algorithm>
#include <cmath>

namespace VELIX {

GraphTrace::GraphTrace(std::size_t entryLimit) : mEntryLimit(entryLimit) {}

void GraphTrace::putValue(double time, double value, bool hold, double frameSpan, double xmax)
{
    const EntryType entry{time, value, hold};
    growSecondIndex(time);
    mInOrder = mInOrder && (mEntries.empty() || time >= mLatestTime);
    mLatestTime = mEntries.empty() ? time : std::max(mLatestTime, time);
    widenRange(value);
    mLastValue = value;
    if (mFrames.empty() || mFrames.back().startTime <= xmax || time <= xmax) {
        addToFrameBuffer(entry, frameSpan);
    }
    if (mEntries.size() < mEntryLimit) {
        addToBlock(entry);
        mEntries.push_back(entry);
    }
}

void GraphTrace::growSecondIndex(double time)
{
    const auto second = static_cast<std::int64_t>(time);
    if (mSecondIndex.empty()) {
        mFirstSecond = second;
    }
    const std::int64_t wanted = second - mFirstSecond + 1;
    if (wanted > static_cast<std::int64_t>(mSecondIndex.size())) {
        mSecondIndex.resize(static_cast<std::size_t>(wanted),
                            static_cast<std::uint32_t>(mEntries.size()));
    }
}

void GraphTrace::widenRange(double value)
{
    if (!std::isfinite(value)) {
        return;
    }
    mMinimum = mHasRange ? std::min(mMinimum, value) : value;
    mMaximum = mHasRange ? std::max(mMaximum, value) : value;
    mHasRange = true;
}

void GraphTrace::addToBlock(const EntryType& entry)
{
    if (mEntries.size() % kBlockSize == 0) {
        mBlocks.push_back({});
        mBlocks.back().earliest = entry.time;
        mBlocks.back().latest = entry.time;
    }
    Block& block = mBlocks.back();
    block.earliest = std::min(block.earliest, entry.time);
    block.latest = std::max(block.latest, entry.time);
    if (std::isfinite(entry.value)) {
        block.allHold = block.allHold && entry.hold;
        block.lastValue = entry.value;
        block.minimum = block.finiteCount == 0 ? entry.value : std::min(block.minimum, entry.value);
        block.maximum = block.finiteCount == 0 ? entry.value : std::max(block.maximum, entry.value);
        block.sum += entry.value;
        ++block.finiteCount;
    }
}

std::size_t GraphTrace::endOfBlock(std::size_t block) const
{
    return std::min((block + 1) * kBlockSize, mEntries.size());
}

std::size_t GraphTrace::firstAtOrAfter(double t) const
{
    if (t > mLatestTime) {
        return mEntries.size();
    }
    std::size_t at = 0;
    const double second = std::trunc(t - static_cast<double>(mFirstSecond));
    if (second > 0.0 && second < static_cast<double>(mSecondIndex.size())) {
        at = mSecondIndex[static_cast<std::size_t>(second)];
    }
    while (at < mEntries.size()) {
        const std::size_t block = at / kBlockSize;
        const std::size_t end = endOfBlock(block);
        if (mBlocks[block].latest >= t) {
            const auto from = mEntries.begin() + static_cast<std::ptrdiff_t>(at);
            const auto to = mEntries.begin() + static_cast<std::ptrdiff_t>(end);
            const auto found =
                std::find_if(from, to, [t](const EntryType& entry) { return entry.time >= t; });
            if (found != to) {
                return static_cast<std::size_t>(found - mEntries.begin());
            }
        }
        at = end;
    }
    return mEntries.size();
}

bool GraphTrace::getValue(double t, double& v) const
{
    v = 0.0;
    if (mEntries.empty() || t < firstTime() || t > mLatestTime) {
        return false;
    }
    const std::size_t at = firstAtOrAfter(t);
    if (at == mEntries.size()) {
        return false;
    }
    v = mEntries[at == 0 ? 0 : at - 1].value;
    return true;
}

bool GraphTrace::addToFrameBuffer(const EntryType& entry, double frameSpan)
{
    if (!std::isfinite(entry.value)) {
        mGapPending = true;
        return true;
    }
    if (mFrames.empty() || entry.time - mFrames.back().startTime > frameSpan) {
        FrameType& frame = mFrames.emplace_back();
        frame.state = 2;
        frame.startTime = entry.time;
        frame.slotA = entry.value;
        frame.hold = entry.hold;
        frame.gapBefore = mGapPending;
        mGapPending = false;
        return true;
    }
    // A gap narrower than a pixel column cannot be seen.
    mGapPending = false;
    FrameType& frame = mFrames.back();
    frame.hold = frame.hold && entry.hold;
    if (frame.state == 2) {
        frame.slotB = entry.value;
        frame.state = 3;
        return false;
    }
    frame.lastValue = entry.value;
    frame.slotA = std::min(frame.slotA, entry.value);
    frame.slotB = std::max(frame.slotB, entry.value);
    frame.state = 4;
    return false;
}

/// Adds a whole block to the last frame, if that gives what adding its samples one by one would.
bool GraphTrace::mergeBlock(std::size_t block, double xmax, double frameSpan)
{
    const Block& from = mBlocks[block];
    if (mFrames.empty() || mFrames.back().state < 3 || from.latest > xmax ||
        from.latest - mFrames.back().startTime > frameSpan) {
        return false;
    }
    mGapPending = !std::isfinite(mEntries[endOfBlock(block) - 1].value);
    if (from.finiteCount > 0) {
        FrameType& frame = mFrames.back();
        frame.hold = frame.hold && from.allHold;
        frame.lastValue = from.lastValue;
        frame.slotA = std::min(frame.slotA, from.minimum);
        frame.slotB = std::max(frame.slotB, from.maximum);
        frame.state = 4;
    }
    return true;
}

void GraphTrace::recalcFrameBuffer(double xmin, double xmax, double frameSpan)
{
    mFrames.clear();
    mGapPending = false;
    std::size_t at = firstAtOrAfter(xmin);
    at -= at > 0 ? 1 : 0;
    while (at < mEntries.size()) {
        const std::size_t block = at / kBlockSize;
        const std::size_t end = endOfBlock(block);
        if (at % kBlockSize != 0 || !mergeBlock(block, xmax, frameSpan)) {
            const auto to = mEntries.begin() + static_cast<std::ptrdiff_t>(end);
            for (auto it = mEntries.begin() + static_cast<std::ptrdiff_t>(at); it != to; ++it) {
                if (addToFrameBuffer(*it, frameSpan) && mInOrder && it->time > xmax) {
                    return;
                }
            }
        }
        at = end;
    }
}

void GraphTrace::dropFramesBefore(double xmin)
{
    while (mFrames.size() > 1 && mFrames[1].startTime < xmin) {
        mFrames.pop_front();
    }
}

GraphTrace::Statistics GraphTrace::statistics(double from, double to) const
{
    Statistics result;
    long double sum = 0.0L;
    const auto add = [&](double low, double high, long double part, std::size_t count) {
        result.minimum = result.count == 0 ? low : std::min(result.minimum, low);
        result.maximum = result.count == 0 ? high : std::max(result.maximum, high);
        result.count += count;
        sum += part;
    };
    for (std::size_t block = firstAtOrAfter(from) / kBlockSize; block < mBlocks.size(); ++block) {
        const Block& summary = mBlocks[block];
        if (mInOrder && summary.earliest > to) {
            break;
        }
        if (summary.finiteCount == 0 || summary.latest < from || summary.earliest > to) {
            continue;
        }
        if (summary.earliest >= from && summary.latest <= to) {
            add(summary.minimum, summary.maximum, summary.sum, summary.finiteCount);
            continue;
        }
        for (std::size_t i = block * kBlockSize; i < endOfBlock(block); ++i) {
            const EntryType& entry = mEntries[i];
            if (entry.time >= from && entry.time <= to && std::isfinite(entry.value)) {
                add(entry.value, entry.value, entry.value, 1);
            }
        }
    }
    if (result.count > 0) {
        result.average = static_cast<double>(sum / static_cast<long double>(result.count));
    }
    return result;
}

void GraphTrace::clear()
{
    *this = GraphTrace(mEntryLimit);
}

} // namespace VELIX
