#include "tools/democard/RecordWriter.h"

#include <QSaveFile>

namespace VELIX::Demo {

namespace {
constexpr std::uint16_t kMagic = 0xABBA;
constexpr int kHeaderBytes = 128;
} // namespace

RecordWriter::RecordWriter(EByteOrder order, const HeaderDate& date, std::uint64_t ticks)
    : mOrder(order)
{
    put16(kMagic);
    for (int i = 0; i < 3; ++i) {
        put16(0);
    }
    put32(0);
    put16(static_cast<std::uint16_t>(date.year));
    for (const std::uint8_t field : {date.month, date.day, date.hour, date.minute, date.second}) {
        put8(field);
    }
    put8(0);
    putTicks(ticks);
    put32(2);     // bus type
    put32(20417); // serial number of the control unit
    putText("DX-7710-A04", 13);
    putText("TWINLANE 4", 13);
    putText("F4G-00318", 13);
    putText("F4G 130 TOW", 13);
    putText("DX-7710-B04", 13);
    putText("1.6.2", 7);
    mBytes.append(QByteArray(kHeaderBytes - mBytes.size(), '\0'));
}

void RecordWriter::append(std::uint32_t id, std::uint16_t source, std::uint64_t ticks,
                          const std::array<std::uint8_t, 8>& data)
{
    for (const std::uint8_t byte : data) { // in bus order whatever the file's order is
        put8(byte);
    }
    put8(8); // length of the payload
    put8(0);
    put16(source);
    put32(id);
    put16(0);
    put16(0);
    putTicks(ticks);
}

bool RecordWriter::write(const QString& path) const
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(mBytes) == mBytes.size() && file.commit();
}

void RecordWriter::put8(std::uint8_t value)
{
    mBytes.append(static_cast<char>(value));
}

void RecordWriter::put16(std::uint16_t value)
{
    const auto high = static_cast<std::uint8_t>(value >> 8U);
    const auto low = static_cast<std::uint8_t>(value);
    put8(mOrder == EByteOrder::BigEndian ? high : low);
    put8(mOrder == EByteOrder::BigEndian ? low : high);
}

void RecordWriter::put32(std::uint32_t value)
{
    const auto high = static_cast<std::uint16_t>(value >> 16U);
    const auto low = static_cast<std::uint16_t>(value);
    put16(mOrder == EByteOrder::BigEndian ? high : low);
    put16(mOrder == EByteOrder::BigEndian ? low : high);
}

void RecordWriter::putTicks(std::uint64_t ticks)
{
    put32(static_cast<std::uint32_t>(ticks >> 32U)); // the high word comes first in both orders
    put32(static_cast<std::uint32_t>(ticks));
}

void RecordWriter::putText(const char* text, int width)
{
    mBytes.append(QByteArray(text).leftJustified(width, '\0', true));
}

} // namespace VELIX::Demo
