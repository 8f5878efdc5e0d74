#pragma once

#include "profile/FaultMatrix.h"
#include "profile/ProfileParameter.h"

#include <QString>

#include <map>
#include <vector>

namespace VELIX {

/// A sender of messages: the engine control lanes and the monitoring unit itself.
struct ProfileDevice
{
    QString name;
    int uid = 0;
    std::vector<FaultMatrix> errorMatrices;     ///< in file order
    std::map<int, ProfileParameter> parameters; ///< by CAN identifier
};

} // namespace VELIX
