#pragma once

#include "profile/ParameterSample.h"
#include "profile/ProfileModel.h"
#include "profile/ProfileUnit.h"
#include "profile/TextValue.h"

#include <QColor>
#include <QString>

#include <cstdint>
#include <string>

namespace VELIX {

/// Decodes messages by a profile model: from bytes to numbers, threshold states and texts.
///
/// It refers to the model and holds nothing else but the unit system, so that one can be made
/// wherever it is needed. It must not outlive the model, and a change of unit system needs a new
/// one.
class ProfileDecoder
{
public:
    ProfileDecoder(const ProfileModel& model, EUnit unit) : mModel(model), mUnit(unit) {}

    /// Returns the integer without scaling; 0 for types without one. The type is the message's own
    /// (byte 1), the position the parameter's.
    static std::int32_t integer(const RecordEntry& e, const ProfileParameter& p);

    /// Returns the number in the current unit system; 0 for types without a decoder.
    double number(const ParameterSample& sample) const;
    /// Returns the same number and judges it; without a decoder state and colour stay as they are.
    double number(const ParameterSample& sample, int& state, QColor& color) const;
    /// Returns the number in the metric unit, whatever the unit system.
    static double metric(const ParameterSample& sample);

    /// Returns the display text without unit. Only FLOAT texts are converted to the current unit
    /// system.
    QString text(const ParameterSample& sample) const;
    /// Returns the same text and judges it as judge() does.
    QString text(const ParameterSample& sample, int& state, QColor& color) const;
    /// Appends the same text as UTF-8.
    void appendText(const ParameterSample& sample, std::string& out) const;
    /// Sets state and colour of the value behind a display text, without making the text. Integers
    /// are judged as shown, bit fields are not judged and leave both as they are.
    void judge(const ParameterSample& sample, int& state, QColor& color) const;

    /// Converts a number from the metric unit to the current unit system.
    double convert(const ProfileParameter& p, double value) const;
    /// Sets state and colour of the threshold band of a number in the metric unit; white and OK
    /// below the first step.
    void threshold(const ProfileParameter& p, double value, int& state, QColor& color) const;
    /// Returns the enumeration of a parameter; null if it has none.
    const ProfileEnum* enumeration(const ProfileParameter& p) const;

private:
    static TextValue textValue(const ParameterSample& sample);
    void judge(const ProfileParameter& p, const TextValue& value, int& state, QColor& color) const;
    void appendText(const ProfileParameter& p, const TextValue& value, std::string& out) const;
    void appendEnumText(const ProfileParameter& p, const TextValue& value, std::string& out) const;

    const ProfileModel& mModel;
    EUnit mUnit;
};

} // namespace VELIX
