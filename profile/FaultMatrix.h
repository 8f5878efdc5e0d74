#pragma once

#include "profile/ProfileParameter.h"

#include <QString>

#include <map>

namespace VELIX {

/// A message whose payload carries 32 error bits, and the parameters assigned to them.
struct FaultMatrix
{
    int id = 0; ///< CAN identifier of the message
    QString name;
    std::map<int, ProfileParameter> bits; ///< by bit, 0 (least significant) to 31
};

} // namespace VELIX
