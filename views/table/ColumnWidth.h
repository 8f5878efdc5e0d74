#pragma once

class QFontMetrics;
class QTableWidget;

namespace VELIX {

class Profile;
struct ProfileParameter;

/// Returns the width in pixels of the widest text of a column, measured in a sample of its rows.
int widestText(const QTableWidget& table, int column);

/// Returns the width in pixels of the widest text of a parameter's enumeration; 0 without one.
int widestLabel(const Profile& profile, const ProfileParameter& p, const QFontMetrics& metrics);

} // namespace VELIX
