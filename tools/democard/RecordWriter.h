#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <cstdint>

namespace VELIX::Demo {

enum class EByteOrder { LittleEndian, BigEndian };

/// Date and time of day (UTC) of a header; all zero, which is no date, while the clock is not set.
struct HeaderDate
{
    std::int16_t year = 0;
    std::uint8_t month = 0;
    std::uint8_t day = 0;
    std::uint8_t hour = 0;
    std::uint8_t minute = 0;
    std::uint8_t second = 0;
};

/// Builds one record file in memory and writes it in the end.
class RecordWriter
{
public:
    RecordWriter(EByteOrder order, const HeaderDate& date, std::uint64_t ticks);

    /// Appends a message; `ticks`: time on the unit's clock in 31.25 ns.
    void append(std::uint32_t id, std::uint16_t source, std::uint64_t ticks,
                const std::array<std::uint8_t, 8>& data);
    /// False if the file cannot be written; an older file of that name is intact then.
    [[nodiscard]] bool write(const QString& path) const;

private:
    void put8(std::uint8_t value);
    void put16(std::uint16_t value);
    void put32(std::uint32_t value);
    void putTicks(std::uint64_t ticks);
    void putText(const char* text, int width);

    EByteOrder mOrder;
    QByteArray mBytes;
};

} // namespace VELIX::Demo
