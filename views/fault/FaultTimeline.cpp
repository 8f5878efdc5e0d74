#include "views/fault/FaultTimeline.h"

#include "card/FaultWord.h"
#include "card/RecordData.h"
#include "core/Truncate.h"
#include "profile/FaultMatrix.h"

#include <algorithm>

namespace VELIX {

namespace {

constexpr int kBits = 32;

std::size_t indexOf(int type)
{
    return static_cast<std::size_t>(type - eErrorInfo);
}

} // namespace

void FaultTimeline::setMatrix(const FaultMatrix& matrix)
{
    setRecord(nullptr);
    mId = static_cast<std::uint32_t>(matrix.id);
    mMasks = {};
    for (const auto& [bit, parameter] : matrix.bits) {
        const int type = parameter.errorType;
        if (bit >= 0 && bit < kBits && type >= eErrorInfo && type <= eErrorFault) {
            mMasks[indexOf(type)] |= std::uint32_t{1} << bit;
        }
    }
}

void FaultTimeline::setRecord(const RecordData* record)
{
    mRecord = record;
    for (Changes& changes : mChanges) {
        changes.clear();
    }
    if (!hasSamples()) {
        return;
    }
    if (entries().isSorted()) {
        for (const RecordEntry& entry : entries()) {
            addSample(entry.time, faultWord(entry));
        }
    } else {
        for (const RecordEntry* entry : entries().sortedByTime()) {
            addSample(entry->time, faultWord(*entry));
        }
    }
    close();
}

void FaultTimeline::addSample(double time, std::uint32_t word)
{
    mLastTime = static_cast<float>(time);
    for (std::size_t i = 0; i < kTypes; ++i) {
        const bool state = (word & mMasks[i]) != 0;
        if (mChanges[i].empty() || mChanges[i].back().state != state) {
            mChanges[i].push_back({mLastTime, state});
        }
    }
}

void FaultTimeline::close()
{
    for (Changes& changes : mChanges) {
        changes.push_back({mLastTime, changes.back().state});
    }
}

bool FaultTimeline::hasSamples() const
{
    return mRecord != nullptr && !entries().empty();
}

const EntryList& FaultTimeline::entries() const
{
    return mRecord->entries(mId);
}

const FaultTimeline::Changes& FaultTimeline::changes(int type) const
{
    return mChanges[indexOf(type)];
}

std::vector<FaultTimeline::Span> FaultTimeline::spans(int type, int width) const
{
    const Changes& list = changes(type);
    std::vector<Span> spans;
    int filled = 0; // first pixel that no span takes yet
    for (std::size_t i = 0; i + 1 < list.size(); ++i) {
        if (!list[i].state) {
            continue;
        }
        int left = std::clamp(getX(list[i].time, width), 0, width);
        int right = std::clamp(getX(list[i + 1].time, width), 0, width);
        if (left >= right) {
            left = std::clamp(left, std::min(1, width - 1), std::max(1, width - 2));
            right = left + 1;
        }
        left = std::max(left, filled);
        if (left < right) {
            spans.push_back({left, right - left});
            filled = right;
        }
    }
    return spans;
}

int FaultTimeline::getX(float time, int width) const
{
    if (mRecord == nullptr) {
        return 0;
    }
    // Single precision throughout: positions agree to the pixel with the rounding of the list's
    // times.
    const auto start = static_cast<float>(mRecord->startTime);
    const auto end = static_cast<float>(mRecord->stopTime);
    if (!(end > start)) {
        return 0;
    }
    const float x = static_cast<float>(width) / (end - start) * (time - start);
    return truncateToInt(static_cast<double>(x));
}

double FaultTimeline::timeAt(int x, int width) const
{
    if (mRecord == nullptr) {
        return 0.0;
    }
    const double start = mRecord->startTime;
    const double length = mRecord->stopTime - start;
    return length > 0.0 && width > 0 ? start + length / width * x : start;
}

std::uint32_t FaultTimeline::wordAt(int x, int width) const
{
    if (!hasSamples()) {
        return 0;
    }
    // The frame hides the outermost pixels; the ones next to it include what happened there.
    const double from = timeAt(x <= 1 ? 0 : x, width);
    const bool last = x >= width - 2 || !(timeAt(width, width) > from);
    const double to = last ? mRecord->stopTime : timeAt(x + 1, width);
    const EntryList& list = entries();
    std::uint32_t word = faultWordAt(list, from);
    for (std::size_t i = list.firstAtOrAfter(from); i < list.size(); ++i) {
        const double time = list[i].time;
        if (time > to || (time == to && !last)) {
            break;
        }
        word |= faultWord(list[i]);
    }
    return word;
}

} // namespace VELIX
