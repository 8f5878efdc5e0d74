#pragma once

#include <map>
#include <string>

namespace VELIX {

class Profile;

/// The user's working selection: the parameters chosen for views and exports, and properties of
/// the CAN bus that are kept for other tools.
///
/// Which parameters are chosen is a flag of the profile's parameters. The project reads and writes
/// the flags as a file and carries them by name over a reload of the profile.
class Project
{
public:
    static Project& instance();
    explicit Project(Profile& profile);

    /// Starts the selection afresh: one unselected entry per parameter of the loaded profile.
    void setProfileData();
    /// A new project: nothing selected, no properties.
    void clear();

    /// Writes the selection, with the names that wait for another profile or variant at its end.
    /// 0 if the file could not be written; an old file is kept then.
    int saveProject(const std::string& file);
    /// 0 if the file could not be read; the selection is kept then. Names that the profile does
    /// not know wait for a variant or profile that does.
    int readProject(const std::string& file);
    /// Whether the file read last calls itself a project; reading takes any XML file.
    bool isProjectFile() const { return mIsProjectFile; }

    /// To be called before the profile is loaded again, since loading forgets the selection.
    void rememberSelection();
    /// To be called after that. A parameter that only another variant has is selected again when
    /// that variant is chosen.
    void restoreSelection();

    void setCanProperties(const std::map<std::string, std::string>& props);
    const std::map<std::string, std::string>& canProperties() const { return mCanProperties; }

private:
    Profile& mProfile;
    bool mIsProjectFile = false;
    std::map<std::string, bool> mSelected; ///< by full name of the parameter, UTF-8
    std::map<std::string, std::string> mCanProperties;
};

} // namespace VELIX
