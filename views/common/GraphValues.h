#pragma once

#include <string>

namespace VELIX {

class Profile;
struct ProfileParameter;

/// How the numbers of a trace are labelled.
namespace GraphValues {

/// The unit of the numbers, which are converted to the current unit system whatever their type;
/// "-" if they have none.
std::string unit(const Profile& profile, const ProfileParameter& parameter);

/// The decimals that the numbers need. A FLOAT has those of the profile; a scaled integer has as
/// many as one step of it shows, since the profile's precision then counts digits.
int decimals(const Profile& profile, const ProfileParameter& parameter);

} // namespace GraphValues
} // namespace VELIX
