#pragma once

#include <QString>

namespace VELIX {

/// An aircraft or engine variant that a profile file serves.
struct ProfileVariant
{
    QString name;
    QString id;
    QString color; ///< as written in the file
};

} // namespace VELIX
