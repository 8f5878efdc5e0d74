#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace VELIX {

class Profile;
class Property;
struct ProfileParameter;

/// Which of the selected parameters the map shows, as the settings keep it.
class MapSelection
{
public:
    /// More would hide the map.
    static constexpr int kMostValues = 12;

    explicit MapSelection(Property& settings);

    /// The parameters of the value panel, in the profile's order: those that the user chose, or
    /// the first few of the selected ones until a choice is made.
    [[nodiscard]] std::vector<const ProfileParameter*> values(const Profile& profile) const;
    /// The parameter that colours the path; null for the altitude.
    [[nodiscard]] const ProfileParameter* color(const Profile& profile) const;

    /// Shows or hides a value; false if there is no room for one more.
    bool setValueShown(const Profile& profile, const QString& fullName, bool shown);
    /// Colours the path by a parameter; an empty name means the altitude.
    void setColor(const QString& fullName);

private:
    void store();

    Property& mSettings;
    bool mChosen = false; ///< by the user
    QStringList mValues;  ///< full names
    QString mColor;       ///< full name, or empty
};

} // namespace VELIX
