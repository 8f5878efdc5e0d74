#pragma once

#include "card/RecordEvent.h"

#include <vector>

namespace VELIX {

class Profile;
class RecordData;

/// Finds the moments at which a warning lamp changes to a lit state. By time.
std::vector<RecordWarning> findWarnings(const RecordData& record, const Profile& profile);

} // namespace VELIX
