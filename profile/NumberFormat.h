#pragma once

#include "profile/ProfileUnit.h"

#include <QString>

namespace VELIX {

struct ProfileParameter;

/// Says how what is decoded of a parameter is labelled in a unit system: units and decimals.
///
/// It refers to the parameter.
class NumberFormat
{
public:
    /// What a unit belongs to. The three differ in the imperial system alone.
    enum class EUnitOf {
        Number, ///< converted whatever its type: imperial if the profile knows the conversion
        Text,   ///< of whole numbers it is not converted: imperial only for FLOAT with a conversion
        List,   ///< what lists of parameters name: always imperial, even if nothing is converted
    };
    /// How the decimals of a number are found.
    enum class EDecimals {
        Exact, ///< as many as no value loses: see decimals()
        Step,  ///< as many as distinguish two values in a narrow field
    };

    NumberFormat(const ProfileParameter& p, EUnit unit) : mParameter(p), mUnit(unit) {}

    /// Whether numbers are converted to the imperial unit.
    bool isConverted() const;
    /// Returns the unit of numbers, texts or lists; empty if the profile names none.
    const QString& unit(EUnitOf of) const;
    /// Returns "name [unit]", or "name" without a unit.
    QString label(EUnitOf of) const;
    /// Returns the decimals of a number. A FLOAT has those of the profile; with Step at most 6. A
    /// scaled integer has those of its step, since the profile's precision then counts digits:
    /// exactly, with Exact, as long as factor and offset have no more than 3.
    int decimals(EDecimals how = EDecimals::Exact) const;

    /// Returns the decimals, 0 to 2, that distinguish the ends of a scale of this width.
    static int decimalsOfSpan(double span);

private:
    int exactDecimals() const;
    int stepDecimals() const;

    const ProfileParameter& mParameter;
    EUnit mUnit;
};

} // namespace VELIX
