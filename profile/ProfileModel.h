#pragma once

#include "profile/ProfileEnum.h"
#include "profile/ProfileInfo.h"
#include "profile/ProfileThr.h"
#include "profile/ProfileUnit.h"

#include <QString>

#include <map>
#include <vector>

namespace VELIX {

/// Everything that one profile file says for one variant.
struct ProfileModel
{
    ProfileInfo info;
    std::map<QString, ProfileUnit> units; ///< by unitMetric + "_" + unitImperial
    std::map<int, ProfileEnum> enums;
    std::map<int, std::vector<ProfileThr>> thresholds; ///< steps in file order
    std::map<int, ProfileParameter> parameters;        ///< all devices, by CAN identifier
    std::map<QString, ProfileParameter> roles;         ///< by velixDataType
};

} // namespace VELIX
