#pragma once

class QFontMetrics;
class QTableWidget;

namespace VELIX {

class Profile;
struct ProfileParameter;

/// Pixels of the widest text of a column, measured in a sample of its rows.
int widestText(const QTableWidget& table, int column);

/// Pixels of the widest text that the enumeration of a parameter can give; 0 without one.
int widestLabel(const Profile& profile, const ProfileParameter& p, const QFontMetrics& metrics);

} // namespace VELIX
