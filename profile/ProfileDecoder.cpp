// The decoding half of Profile: from the bytes of a message to numbers, states and texts.

#include "core/Truncate.h"
#include "profile/DataType.h"
#include "profile/Payload.h"
#include "profile/Profile.h"
#include "profile/TextValue.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace VELIX {

namespace {

constexpr int kMaxPrecision = 50; // of a text; a profile can ask for any number of digits

/// The integer of an integer type or bit field, exact; 0 for the other types.
std::int64_t rawInteger(EExtraction extraction, const Payload& payload, const ProfileParameter& p)
{
    switch (extraction) {
    case EExtraction::Signed32:
        return static_cast<std::int32_t>(payload.word32(p.startByte));
    case EExtraction::Unsigned32:
        return payload.word32(p.startByte);
    case EExtraction::Bits32:
        return bitField(payload.word32(p.startByte), 32, p.startBit, p.endBit);
    case EExtraction::Signed16:
        return static_cast<std::int16_t>(payload.word16(p.startByte));
    case EExtraction::Unsigned16:
        return payload.word16(p.startByte);
    case EExtraction::Bits16:
        return bitField(payload.word16(p.startByte), 16, p.startBit, p.endBit);
    case EExtraction::Signed8:
        return static_cast<std::int8_t>(payload.byte(p.startByte));
    case EExtraction::Unsigned8:
        return payload.byte(p.startByte);
    case EExtraction::None:
    case EExtraction::Float:
        break;
    }
    return 0;
}

double scaled(const ProfileParameter& p, double value)
{
    return value * p.factor + p.offset;
}

double floatValue(const Payload& payload, const ProfileParameter& p)
{
    return static_cast<double>(std::bit_cast<float>(payload.word32(p.startByte)));
}

template <class T>
void appendInteger(T value, std::string& out)
{
    std::array<char, 16> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    out.append(digits.data(), end);
}

void appendReal(double value, std::chars_format format, int precision, std::string& out)
{
    if (std::isnan(value)) {
        out += "nan"; // without the sign that NaNs can carry
        return;
    }
    std::array<char, 400> digits{}; // 309 digits, the point and kMaxPrecision decimals
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, format,
                                   std::clamp(precision, 0, kMaxPrecision))
                         .ptr;
    out.append(digits.data(), end);
}

} // namespace

int Profile::getInt(const RecordEntry& e, const ProfileParameter& p) const
{
    return static_cast<std::int32_t>(rawInteger(extractionOf(e.data[1]), Payload(e), p));
}

int Profile::getInt(const RecordEntry& e) const
{
    const auto found = mModel.parameters.find(static_cast<int>(e.id));
    return found == mModel.parameters.end() ? getInt(e, ProfileParameter())
                                            : getInt(e, found->second);
}

double Profile::coordinate(const ProfileParameter& p, double value)
{
    switch (p.coordinate) {
    case ECoordinate::Latitude:
        return mCoordinates.latitude(value);
    case ECoordinate::Longitude:
        return mCoordinates.longitude(value);
    case ECoordinate::None:
        break;
    }
    return value;
}

/// The number in the metric unit; false for types without a decoder.
bool Profile::decode(const RecordEntry& e, const ProfileParameter& p, bool scale, double& value)
{
    const Payload payload(e);
    const EExtraction extraction = extractionOf(p.dataType);
    switch (extraction) {
    case EExtraction::None:
        return false;
    case EExtraction::Float:
        value = floatValue(payload, p);
        break;
    case EExtraction::Signed32:
    case EExtraction::Unsigned32: // through single precision: displays are compared against it
        value = static_cast<float>(rawInteger(extraction, payload, p));
        break;
    default:
        value = static_cast<double>(rawInteger(extraction, payload, p));
        break;
    }
    const bool isBitField = extraction == EExtraction::Bits32 || extraction == EExtraction::Bits16;
    if (scale && !isBitField) {
        value = scaled(p, value);
    }
    if (extraction == EExtraction::Float) {
        value = coordinate(p, value);
    }
    return true;
}

double Profile::getDouble(const RecordEntry& e, const ProfileParameter& p, int& state,
                          QColor& color, bool scale)
{
    double value = 0.0;
    if (!decode(e, p, scale, value)) {
        return 0.0;
    }
    getThreshold(p, value, state, color);
    return convertUnit(p, value);
}

double Profile::getMetric(const RecordEntry& e, const ProfileParameter& p)
{
    double value = 0.0;
    decode(e, p, true, value);
    return value;
}

double Profile::getDouble(const RecordEntry& e, const ProfileParameter& p, bool scale)
{
    double value = 0.0;
    return decode(e, p, scale, value) ? convertUnit(p, value) : 0.0;
}

double Profile::getDouble(const RecordEntry& e, bool scale)
{
    return getDouble(e, mModel.parameters[static_cast<int>(e.id)], scale);
}

double Profile::convertUnit(const ProfileParameter& p, double value) const
{
    return mUnit == eUnitImperial ? value * p.toImperial.factor + p.toImperial.offset : value;
}

void Profile::getThreshold(const ProfileParameter& p, double value, int& state, QColor& color) const
{
    color = QColor(255, 255, 255);
    state = eThresholdOk;
    const auto list = mModel.thresholds.find(p.thresholdId);
    if (list == mModel.thresholds.end()) {
        return;
    }
    const ProfileThr* reached = nullptr;
    for (const ProfileThr& step : list->second) {
        if (step.value > value) {
            break;
        }
        reached = &step;
    }
    if (reached != nullptr) {
        color = reached->color;
        state = reached->state;
    }
}

TextValue Profile::textValue(const RecordEntry& e, const ProfileParameter& p)
{
    using Kind = TextValue::Kind;
    const Payload payload(e);
    const EExtraction extraction = extractionOf(p.dataType);
    if (extraction == EExtraction::Float) {
        return {Kind::Fixed, coordinate(p, scaled(p, floatValue(payload, p))), 0};
    }
    if (extraction == EExtraction::Unsigned32) {
        // Little-endian, unlike the number: that is how these texts have always been made.
        return {Kind::General, scaled(p, payload.word32LittleEndian(p.startByte)), 0};
    }
    const std::int64_t raw = rawInteger(extraction, payload, p);
    std::int32_t value = truncateToInt(scaled(p, static_cast<double>(raw)));
    switch (extraction) { // scaled integers wrap into their own width
    case EExtraction::None:
        return {};
    case EExtraction::Bits32:
        return {Kind::StrictEnum, 0.0, static_cast<std::int32_t>(raw)};
    case EExtraction::Bits16:
        return {Kind::Enum, 0.0, static_cast<std::int32_t>(raw)};
    case EExtraction::Signed16:
        value = static_cast<std::int16_t>(value);
        break;
    case EExtraction::Unsigned16:
        value &= 0xFFFF;
        break;
    case EExtraction::Signed8:
        value = static_cast<std::int8_t>(value);
        break;
    case EExtraction::Unsigned8:
        value &= 0xFF;
        break;
    default:
        break;
    }
    return {Kind::Integer, static_cast<double>(value), value};
}

void Profile::judge(const ProfileParameter& p, const TextValue& value, int& state,
                    QColor& color) const
{
    switch (value.kind) {
    case TextValue::Kind::Fixed:
    case TextValue::Kind::General:
    case TextValue::Kind::Integer:
        getThreshold(p, value.number, state, color);
        break;
    case TextValue::Kind::Undecoded:
        color = QColor(255, 255, 255);
        break;
    case TextValue::Kind::StrictEnum:
    case TextValue::Kind::Enum:
        break;
    }
}

void Profile::appendEnumText(const ProfileParameter& p, const TextValue& value,
                             std::string& out) const
{
    appendInteger(value.integer, out);
    const ProfileEnum* labels = enumeration(p);
    const bool strict = value.kind == TextValue::Kind::StrictEnum;
    if (labels == nullptr) {
        out += strict ? ": Invalid ENUM Type" : "";
        return;
    }
    const auto found = labels->values.find(value.integer);
    if (found == labels->values.end()) {
        out += strict ? ": Invalid ENUM Value" : "";
        return;
    }
    out += ": ";
    out += found->second.label.toStdString();
}

void Profile::appendText(const ProfileParameter& p, const TextValue& value, std::string& out) const
{
    switch (value.kind) {
    case TextValue::Kind::Fixed:
        appendReal(convertUnit(p, value.number), std::chars_format::fixed, p.precision, out);
        break;
    case TextValue::Kind::General:
        appendReal(value.number, std::chars_format::general, p.precision, out);
        break;
    case TextValue::Kind::Integer:
        appendInteger(value.integer, out);
        break;
    case TextValue::Kind::StrictEnum:
    case TextValue::Kind::Enum:
        appendEnumText(p, value, out);
        break;
    case TextValue::Kind::Undecoded:
        out += "Datatype ";
        appendInteger(p.dataType, out);
        out += " not implemented";
        break;
    }
}

QString Profile::getDataString(const RecordEntry& e, const ProfileParameter& p, int& state,
                               QColor& color)
{
    const TextValue value = textValue(e, p);
    judge(p, value, state, color);
    return text(p, value);
}

QString Profile::text(const ProfileParameter& p, const TextValue& value) const
{
    std::string utf8;
    appendText(p, value, utf8);
    return QString::fromStdString(utf8);
}

void Profile::appendDataString(const RecordEntry& e, const ProfileParameter& p, std::string& out)
{
    appendText(p, textValue(e, p), out);
}

void Profile::getDataState(const RecordEntry& e, const ProfileParameter& p, int& state,
                           QColor& color)
{
    judge(p, textValue(e, p), state, color);
}

double Profile::calcCoordinate(double value)
{
    return degreesFromDegreesMinutes(value);
}

double Profile::calcCoordinateLat(double value, double /*time*/)
{
    return mCoordinates.latitude(value);
}

double Profile::calcCoordinateLong(double value, double /*time*/)
{
    return mCoordinates.longitude(value);
}

void Profile::resetCoordinates()
{
    mCoordinates.reset();
}

} // namespace VELIX
