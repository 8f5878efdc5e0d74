#pragma once

#include "core/Outcome.h"
#include "gui/profile/ProfileSettings.h"
#include "profile/Profile.h"

#include <QCoreApplication>

namespace VELIX {

class Project;

/// Puts the profile, its variant and the unit system in force that the settings name.
class ProfileController
{
    Q_DECLARE_TR_FUNCTIONS(VELIX::ProfileController)

public:
    ProfileController(Profile& profile, Project& project, Property& settings,
                      const DataHandler& paths);

    /// Loads the profile and selects its variant; a variant that it lacks counts as none. The
    /// user's selection is carried over by name.
    void load();
    /// How load() ended the last time; a profile that is not installed fails without a reason.
    const Outcome& outcome() const { return mOutcome; }

    /// Stores the user's choice; load() puts it in force.
    void storeVariant(const QString& variant);
    /// Stores the user's choice; applyUnit() puts it in force.
    void storeUnit(int unit);
    /// Puts the unit system of the settings in force and returns it.
    EUnit applyUnit();

    /// Which file and which variant are chosen.
    ProfileSettings& files() { return mFiles; }

private:
    Profile& mProfile;
    Project& mProject;
    Property& mSettings;
    ProfileSettings mFiles;
    Outcome mOutcome;
};

} // namespace VELIX
