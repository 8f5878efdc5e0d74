#pragma once

#include "card/RecordData.h"
#include "core/RecordEntry.h"
#include "profile/DataType.h"
#include "tests/support/TestFile.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <bit>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

namespace VELIX::Test {

/// Small notation for recordings:
///
///     RecordBuilder record;
///     record.at(1.0).id(500).floatValue(12.5F).id(501).ushortValue(3);
///     record.at(1.1).id(500).floatValue(13.0F);
///     auto data = record.data();           // as a reader would have filled it
///     record.write(path);                  // or as a record file
///
/// Time, identifier and source apply until they are given again; each value appends one entry.
/// Values are in payload bytes 4 to 7 (startByte 4), byte 1 says their type.
class RecordBuilder
{
public:
    enum class Order { Big, Little };

    RecordBuilder& at(double seconds)
    {
        return ticks(static_cast<std::uint64_t>(std::llround(seconds / 31.25e-9)));
    }
    RecordBuilder& ticks(std::uint64_t count)
    {
        mNext.timeHigh = static_cast<std::uint32_t>(count >> 32);
        mNext.timeLow = static_cast<std::uint32_t>(count);
        mNext.time = ticksToSeconds(mNext.timeHigh, mNext.timeLow);
        mNext.time10 = static_cast<std::int32_t>(timeKey(mNext.time));
        return *this;
    }
    RecordBuilder& id(std::uint32_t canId)
    {
        mNext.id = canId;
        return *this;
    }
    /// 0 and 1 put the entries into a collective list as well; 2, the default, does not.
    RecordBuilder& source(std::uint16_t number)
    {
        mNext.source = number;
        return *this;
    }

    RecordBuilder& floatValue(float value)
    {
        return payload(eFloat, std::bit_cast<std::uint32_t>(value));
    }
    /// A value at each time.
    RecordBuilder& floatValues(std::initializer_list<std::pair<double, float>> values)
    {
        for (const auto& [seconds, value] : values) {
            at(seconds).floatValue(value);
        }
        return *this;
    }
    RecordBuilder& longValue(std::int32_t value)
    {
        return payload(eLong, static_cast<std::uint32_t>(value));
    }
    RecordBuilder& ulongValue(std::uint32_t value) { return payload(eULong, value); }
    RecordBuilder& blongValue(std::uint32_t value) { return payload(eBLong, value); }
    RecordBuilder& ushortValue(std::uint16_t value)
    {
        return payload(eUShort, std::uint32_t{value} << 16);
    }
    RecordBuilder& bshortValue(std::uint16_t value)
    {
        return payload(eBShort, std::uint32_t{value} << 16);
    }
    RecordBuilder& ucharValue(std::uint8_t value)
    {
        return payload(eUChar, std::uint32_t{value} << 24);
    }
    /// Payload bytes 4 to 7 as one big-endian word.
    RecordBuilder& payload(EDataType type, std::uint32_t word)
    {
        mNext.data = {1,
                      static_cast<std::uint8_t>(type),
                      0,
                      0,
                      static_cast<std::uint8_t>(word >> 24),
                      static_cast<std::uint8_t>(word >> 16),
                      static_cast<std::uint8_t>(word >> 8),
                      static_cast<std::uint8_t>(word)};
        mEntries.push_back(mNext);
        return *this;
    }

    /// Sets the start of the recording, UTC; without one the header has an impossible date.
    RecordBuilder& date(const QDateTime& utc)
    {
        mDate = utc;
        return *this;
    }
    static QDateTime utc(int year, int month, int day, int hour, int minute, int second)
    {
        return {QDate(year, month, day), QTime(hour, minute, second), Qt::UTC};
    }

    const std::vector<RecordEntry>& entries() const { return mEntries; }
    /// The entry appended last.
    const RecordEntry& last() const { return mEntries.back(); }

    /// Returns the recording as the card's reader fills it.
    std::shared_ptr<RecordData> data() const
    {
        auto data = std::make_shared<RecordData>();
        for (const RecordEntry& entry : mEntries) {
            const bool first = data->entryCount == 0;
            data->startTime = first ? entry.time : std::min(data->startTime, entry.time);
            data->stopTime = first ? entry.time : std::max(data->stopTime, entry.time);
            data->append(entry);
        }
        data->startDateTime = mDate;
        data->finish(data->stopTime);
        return data;
    }

    /// Returns the recording as the bytes of a record file.
    QByteArray bytes(Order order = Order::Big) const
    {
        QByteArray out;
        header(out, order);
        for (const RecordEntry& entry : mEntries) {
            for (const std::uint8_t byte : entry.data) {
                out.append(static_cast<char>(byte));
            }
            out.append(static_cast<char>(entry.aux8)).append(static_cast<char>(entry.aux9));
            put16(out, order, entry.source);
            put32(out, order, entry.id);
            put16(out, order, entry.aux16);
            put16(out, order, entry.aux18);
            put32(out, order, entry.timeHigh);
            put32(out, order, entry.timeLow);
        }
        return out;
    }
    bool write(const QString& path, Order order = Order::Big) const
    {
        return writeFile(path, bytes(order));
    }

private:
    static constexpr int kHeaderBytes = 128;

    static void put16(QByteArray& out, Order order, std::uint16_t value)
    {
        const char high = static_cast<char>(value >> 8);
        const char low = static_cast<char>(value & 0xFF);
        const bool big = order == Order::Big;
        out.append(big ? high : low).append(big ? low : high);
    }
    static void put32(QByteArray& out, Order order, std::uint32_t value)
    {
        const auto high = static_cast<std::uint16_t>(value >> 16);
        const auto low = static_cast<std::uint16_t>(value & 0xFFFF);
        const bool big = order == Order::Big;
        put16(out, order, big ? high : low);
        put16(out, order, big ? low : high);
    }
    void header(QByteArray& out, Order order) const
    {
        const QDate day = mDate.date();
        const QTime time = mDate.time();
        put16(out, order, 0xABBA);
        out.append(10, '\0'); // reserved
        put16(out, order, static_cast<std::uint16_t>(day.isValid() ? day.year() : 0));
        for (const int part : {day.isValid() ? day.month() : 0, day.isValid() ? day.day() : 0,
                               time.isValid() ? time.hour() : 0, time.isValid() ? time.minute() : 0,
                               time.isValid() ? time.second() : 0}) {
            out.append(static_cast<char>(part));
        }
        out.append(kHeaderBytes - out.size(), '\0');
    }

    RecordEntry mNext = initial();
    static RecordEntry initial()
    {
        RecordEntry entry;
        entry.source = 2;
        return entry;
    }
    std::vector<RecordEntry> mEntries;
    QDateTime mDate;
};

} // namespace VELIX::Test
