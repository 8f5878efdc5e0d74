#pragma once

#include <QString>

#include <map>

namespace VELIX {

/// One named value of an enumeration.
struct ProfileEnumValue
{
    QString label;
    int id = 0;
};

/// An enumeration: the labels of the values that a bit field can take.
struct ProfileEnum
{
    QString name;
    std::map<int, ProfileEnumValue> values;
};

} // namespace VELIX
