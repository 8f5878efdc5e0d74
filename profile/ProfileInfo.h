#pragma once

#include "profile/ProfileDevice.h"

#include <QString>

#include <vector>

namespace VELIX {

/// The loaded profile file: its header texts and its devices in file order.
struct ProfileInfo
{
    QString version;
    QString profileId;
    QString name;
    QString comment;
    std::vector<ProfileDevice> devices;
};

} // namespace VELIX
