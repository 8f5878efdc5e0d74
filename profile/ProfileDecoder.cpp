#include "profile/ProfileDecoder.h"

#include "core/Truncate.h"
#include "profile/Payload.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

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

/// The number in the metric unit; false for types without a decoder.
bool decode(const ParameterSample& sample, double& value)
{
    const ProfileParameter& p = sample.parameter();
    const Payload payload(sample.entry());
    const EExtraction extraction = extractionOf(p.dataType);
    switch (extraction) {
    case EExtraction::None:
        return false;
    case EExtraction::Float:
        if (p.coordinate != ECoordinate::None) {
            value = sample.position();
            return true;
        }
        value = payload.real(p.startByte);
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
    if (sample.isScaled() && !isBitField) {
        value = p.scaled(value);
    }
    return true;
}

} // namespace

std::int32_t ProfileDecoder::integer(const RecordEntry& e, const ProfileParameter& p)
{
    return static_cast<std::int32_t>(rawInteger(extractionOf(e.data[1]), Payload(e), p));
}

double ProfileDecoder::number(const ParameterSample& sample, int& state, QColor& color) const
{
    double value = 0.0;
    if (!decode(sample, value)) {
        return 0.0;
    }
    threshold(sample.parameter(), value, state, color);
    return convert(sample.parameter(), value);
}

double ProfileDecoder::number(const ParameterSample& sample) const
{
    double value = 0.0;
    return decode(sample, value) ? convert(sample.parameter(), value) : 0.0;
}

double ProfileDecoder::metric(const ParameterSample& sample)
{
    double value = 0.0;
    decode(sample, value);
    return value;
}

double ProfileDecoder::convert(const ProfileParameter& p, double value) const
{
    return mUnit == eUnitImperial ? value * p.toImperial.factor + p.toImperial.offset : value;
}

void ProfileDecoder::threshold(const ProfileParameter& p, double value, int& state,
                               QColor& color) const
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

TextValue ProfileDecoder::textValue(const ParameterSample& sample)
{
    using Kind = TextValue::Kind;
    const ProfileParameter& p = sample.parameter();
    const Payload payload(sample.entry());
    const EExtraction extraction = extractionOf(p.dataType);
    if (extraction == EExtraction::Float) {
        const double number = p.coordinate != ECoordinate::None
                                  ? sample.position()
                                  : p.scaled(payload.real(p.startByte));
        return {Kind::Fixed, number, 0};
    }
    if (extraction == EExtraction::Unsigned32) {
        // Little-endian, unlike the number: kept for compatibility with texts made before.
        return {Kind::General, p.scaled(payload.word32LittleEndian(p.startByte)), 0};
    }
    const std::int64_t raw = rawInteger(extraction, payload, p);
    std::int32_t value = truncateToInt(p.scaled(static_cast<double>(raw)));
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

void ProfileDecoder::judge(const ProfileParameter& p, const TextValue& value, int& state,
                           QColor& color) const
{
    switch (value.kind) {
    case TextValue::Kind::Fixed:
    case TextValue::Kind::General:
    case TextValue::Kind::Integer:
        threshold(p, value.number, state, color);
        break;
    case TextValue::Kind::Undecoded:
        color = QColor(255, 255, 255);
        break;
    case TextValue::Kind::StrictEnum:
    case TextValue::Kind::Enum:
        break;
    }
}

void ProfileDecoder::appendEnumText(const ProfileParameter& p, const TextValue& value,
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

void ProfileDecoder::appendText(const ProfileParameter& p, const TextValue& value,
                                std::string& out) const
{
    switch (value.kind) {
    case TextValue::Kind::Fixed:
        appendReal(convert(p, value.number), std::chars_format::fixed, p.precision, out);
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

const ProfileEnum* ProfileDecoder::enumeration(const ProfileParameter& p) const
{
    const auto found = mModel.enums.find(p.enumId);
    return found == mModel.enums.end() ? nullptr : &found->second;
}

QString ProfileDecoder::text(const ParameterSample& sample) const
{
    std::string utf8;
    appendText(sample, utf8);
    return QString::fromStdString(utf8);
}

QString ProfileDecoder::text(const ParameterSample& sample, int& state, QColor& color) const
{
    const TextValue value = textValue(sample);
    judge(sample.parameter(), value, state, color);
    std::string utf8;
    appendText(sample.parameter(), value, utf8);
    return QString::fromStdString(utf8);
}

void ProfileDecoder::appendText(const ParameterSample& sample, std::string& out) const
{
    appendText(sample.parameter(), textValue(sample), out);
}

void ProfileDecoder::judge(const ParameterSample& sample, int& state, QColor& color) const
{
    judge(sample.parameter(), textValue(sample), state, color);
}

} // namespace VELIX
