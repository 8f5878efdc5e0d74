#pragma once

#include "card/RecordEvent.h"

#include <vector>

namespace VELIX {

class Profile;
class RecordData;

/// Finds the moments at which a parameter enters its warning or limit band from below.
///
/// A parameter's first sample never counts, neither does a fall from limit to warning. By time.
std::vector<RecordLimit> findLimits(const RecordData& record, const Profile& profile);

} // namespace VELIX
