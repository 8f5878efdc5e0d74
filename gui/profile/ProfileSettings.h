#pragma once

#include <QString>

class DataHandler;

namespace VELIX {

class Property;

/// Reads and stores which profile file and which variant are in force.
///
/// The setting "Profile" holds a variant's name or, after the user chose a file, its path; the key
/// "ProfileFile" keeps the chosen file apart, so that choosing a variant does not lose it.
class ProfileSettings
{
public:
    ProfileSettings(Property& settings, const DataHandler& paths);

    /// The chosen file as long as it can be read, else the installed one.
    QString profileFile() const;
    /// Where an installed profile is stored.
    QString installedFile() const;
    /// The chosen variant; empty takes all elements of the profile.
    QString variant() const;

    void storeVariant(const QString& variant);
    /// Puts the file in force, with all its elements until a variant is chosen.
    void chooseFile(const QString& path);
    /// Puts the installed profile in force again.
    void forgetChosenFile();

private:
    QString chosenFile() const;
    bool namesChosenFile(const QString& text) const;

    Property& mSettings;
    const DataHandler& mPaths;
};

} // namespace VELIX
