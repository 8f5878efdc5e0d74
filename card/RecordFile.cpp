#include "card/RecordFile.h"

#include "card/RecordData.h"
#include "card/RecordFieldReader.h"
#include "core/Diagnostics.h"
#include "core/Progress.h"
#include "core/Truncate.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cstdio>
#include <limits>
#include <new>
#include <vector>

namespace VELIX {

namespace {

constexpr std::uint16_t kMagic = 0xABBA;
constexpr std::int64_t kHeaderSize = 128;
constexpr std::int64_t kEntrySize = 28;
constexpr std::int64_t kEntryTimeOffset = 20; // of the time words in an entry
constexpr std::int64_t kBlock = 32768;        // entries read at once: fits the processor's cache

std::int64_t wholeEntries(std::int64_t fileSize)
{
    return std::max<std::int64_t>(0, (fileSize - kHeaderSize) / kEntrySize);
}

/// A sparse file can claim more entries than the number shown holds.
std::uint32_t shownCount(std::int64_t count)
{
    constexpr std::int64_t kMost = std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(std::min(count, kMost));
}

QString headerText(RecordFieldReader& in, std::size_t width)
{
    std::array<char, 32> text{};
    in.getString(text.data(), width);
    return QString::fromLatin1(text.data());
}

double readTime(RecordFieldReader& in)
{
    std::uint32_t high = 0;
    std::uint32_t low = 0;
    in.getUInt(high);
    in.getUInt(low);
    return ticksToSeconds(high, low);
}

QDateTime readDateTime(RecordFieldReader& in)
{
    std::int16_t year = 0;
    std::array<std::uint8_t, 6> part{}; // month, day, hour, minute, second, reserved
    in.getShort(year);
    for (std::uint8_t& value : part) {
        in.getUChar(value);
    }
    return {QDate(year, part[0], part[1]), QTime(part[2], part[3], part[4]), Qt::UTC};
}

RecordEntry decodeEntry(const RecordFieldReader& in, const std::byte* at)
{
    RecordEntry entry;
    RecordFieldReader::getbString(at, entry.data.data(), entry.data.size());
    in.getbUChar(at, entry.aux8);
    in.getbUChar(at, entry.aux9);
    in.getbUShort(at, entry.source);
    in.getbUInt(at, entry.id);
    in.getbUShort(at, entry.aux16);
    in.getbUShort(at, entry.aux18);
    in.getbUInt(at, entry.timeHigh);
    in.getbUInt(at, entry.timeLow);
    entry.time = ticksToSeconds(entry.timeHigh, entry.timeLow);
    entry.time10 = truncateToInt(entry.time * 10.0 + 0.5);
    return entry;
}

/// Reports the progress through the entries of one file.
class EntryProgress
{
public:
    EntryProgress(std::int64_t count, Progress& progress) : mCount(count), mProgress(progress) {}

    /// False once the operation is cancelled.
    [[nodiscard]] bool at(std::int64_t index) { return index < mNext || report(index); }

private:
    bool report(std::int64_t index)
    {
        const float percent = static_cast<float>(index) / static_cast<float>(mCount) * 100.0F;
        // The next percent cannot come before this; asking only then keeps the division rare.
        mNext = std::max(index + 1, (static_cast<std::int64_t>(percent) + 1) * mCount / 100);
        return mProgress.reach(static_cast<double>(percent));
    }

    std::int64_t mCount;
    std::int64_t mNext = 0;
    Progress& mProgress;
};

} // namespace

bool RecordFile::readRecordInfo(const QString& path)
{
    mInfo.fileName = path;
    RecordFieldReader in(QFile::encodeName(path).constData());
    if (!in.isOpen()) {
        Diagnostics::print("RecordFile::readRecordInfo: Could not open %s\n",
                           path.toUtf8().constData());
        std::perror("Error: ");
        return false;
    }
    mCount = wholeEntries(in.size());
    mInfo.sampleCount = shownCount(mCount);
    readInfo(in, true);
    return true;
}

void RecordFile::reportUnreadable() const
{
    Diagnostics::print("RecordFile::readRecordData: Could not open %s\n",
                       mInfo.fileName.toUtf8().constData());
}

bool RecordFile::checkReadable() const
{
    const bool readable = QFileInfo(mInfo.fileName).isReadable();
    if (!readable) {
        reportUnreadable();
    }
    return readable;
}

bool RecordFile::readRecordData(RecordData& data)
{
    Progress nobody;
    return readRecordData(data, 0, nobody);
}

bool RecordFile::readRecordData(RecordData& data, std::uint64_t memoryLimit, Progress& progress)
{
    RecordFieldReader in(QFile::encodeName(mInfo.fileName).constData());
    if (!in.isOpen()) {
        reportUnreadable();
        return false;
    }
    mCount = wholeEntries(in.size());
    mInfo.sampleCount = shownCount(mCount);
    readInfo(in, false);
    return progress.restart() && readData(in, data, memoryLimit, progress);
}

void RecordFile::readInfo(RecordFieldReader& in, bool setTimes)
{
    std::uint16_t magic = 0;
    in.setSwap(false);
    in.getUShort(magic);
    // A damaged mark is read swapped, never refused.
    in.setSwap(magic != kMagic);

    std::int16_t reserved16 = 0;
    std::uint32_t reserved32 = 0;
    in.getShort(reserved16);
    in.getShort(reserved16);
    in.getShort(reserved16);
    in.getUInt(reserved32);
    mInfo.dateTime = readDateTime(in);
    const double headerTime = readTime(in);
    in.getInt(mInfo.busType);
    in.getUInt(mInfo.ecuSerialNumber);
    mInfo.softwarePartA = headerText(in, 13);
    mInfo.ecuType = headerText(in, 13);
    mInfo.engineSerial = headerText(in, 13);
    mInfo.engineType = headerText(in, 13);
    mInfo.softwarePartB = headerText(in, 13);
    mInfo.emuSwVersion = headerText(in, 7);

    if (setTimes) {
        mInfo.startTime = headerTime;
        if (mCount > 0) {
            in.seek(kHeaderSize + kEntryTimeOffset);
            mInfo.startTime = readTime(in);
            in.seek(kHeaderSize + kEntrySize * (mCount - 1) + kEntryTimeOffset);
            mInfo.stopTime = readTime(in);
        }
    }
    in.seek(kHeaderSize);
}

// Decoded block by block while the bytes are in the processor's cache: a buffer for the whole file
// would double the memory that a load touches first.
bool RecordFile::readData(RecordFieldReader& in, RecordData& data, std::uint64_t memoryLimit,
                          Progress& progress)
try {
    std::vector<std::byte> buffer(static_cast<std::size_t>(std::min(mCount, kBlock) * kEntrySize));
    EntryProgress entryProgress(mCount, progress);
    std::int64_t index = 0;
    while (index < mCount) {
        const auto wanted = static_cast<std::size_t>(std::min(mCount - index, kBlock) * kEntrySize);
        const std::size_t got = in.read(buffer.data(), wanted) / kEntrySize;
        const std::byte* at = buffer.data();
        for (std::size_t i = 0; i < got; ++i, at += kEntrySize, ++index) {
            const RecordEntry entry = decodeEntry(in, at);
            if (data.entryCount == 0) {
                mInfo.startTime = mInfo.stopTime = entry.time;
            }
            mInfo.startTime = std::min(mInfo.startTime, entry.time);
            mInfo.stopTime = std::max(mInfo.stopTime, entry.time);
            data.append(entry);
            if (!entryProgress.at(index)) {
                return false;
            }
        }
        if (got * kEntrySize < wanted) {
            Diagnostics::print("RecordFile::readRecordData: %s ends after %lld of %lld entries\n",
                               mInfo.fileName.toUtf8().constData(), static_cast<long long>(index),
                               static_cast<long long>(mCount));
            return false;
        }
        if (memoryLimit != 0 && data.memory() > memoryLimit) {
            Diagnostics::print("RecordFile::readRecordData: %s exceeds the memory limit\n",
                               mInfo.fileName.toUtf8().constData());
            return false;
        }
    }
    return progress.reach(100.0);
} catch (const std::bad_alloc&) {
    Diagnostics::print("RecordFile::readRecordData: No memory for %s\n",
                       mInfo.fileName.toUtf8().constData());
    return false;
}

} // namespace VELIX
