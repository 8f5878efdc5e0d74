#pragma once

#include "profile/ProfileParameter.h"

#include <string>
#include <vector>

namespace VELIX {

class Profile;

/// A parameter that the instrument panel shows.
struct ViewParameter
{
    ProfileParameter parameter; ///< a copy: the profile may be loaded again at any time
    std::string viewId;         ///< the view's variable, UTF-8
    std::string stateId;        ///< the variable of its threshold state
    std::string missingId;      ///< the variable that says whether the record lacks it
};

/// Returns every parameter of the profile that has a view id, in profile order.
[[nodiscard]] std::vector<ViewParameter> viewParameters(const Profile& profile);

/// Returns a view description for a profile whose parameters no other view knows: a field with
/// name, value and unit for each, or only the variant and unit system where there are none.
[[nodiscard]] std::string generatedPanel(const Profile& profile,
                                         const std::vector<ViewParameter>& parameters);

} // namespace VELIX
