#include "gui/profile/ProfileController.h"

#include "core/Property.h"
#include "gui/project/Project.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace VELIX {

namespace {

constexpr const char* kUnit = "Unit";

bool hasVariant(const Profile& profile, const QString& name)
{
    const auto& variants = profile.variants();
    return std::any_of(variants.begin(), variants.end(),
                       [&](const ProfileVariant& variant) { return variant.name == name; });
}

} // namespace

ProfileController::ProfileController(Profile& profile, Project& project, Property& settings,
                                     const DataHandler& paths)
    : mProfile(profile), mProject(project), mSettings(settings), mFiles(settings, paths)
{}

void ProfileController::load()
{
    mProject.rememberSelection();
    const QString file = mFiles.profileFile();
    mOutcome = {mProfile.loadProfile(file) != 0, false, {}};
    if (!mOutcome.ok && QFileInfo::exists(file)) {
        mOutcome.reason = tr("The profile %1 cannot be read.").arg(QDir::cleanPath(file));
    }
    const QString variant = mFiles.variant();
    // A variant of another profile would leave little of this one.
    const bool known = mProfile.variants().empty() || hasVariant(mProfile, variant);
    mProfile.setCurrentVariant(known ? variant : QString());
    mProject.restoreSelection();
}

void ProfileController::storeVariant(const QString& variant)
{
    mFiles.storeVariant(variant);
    mSettings.writeXmlFile();
}

void ProfileController::storeUnit(int unit)
{
    mSettings.setInt(kUnit, unit);
    mSettings.writeXmlFile();
}

EUnit ProfileController::applyUnit()
{
    const EUnit unit =
        mSettings.getInt(kUnit, eUnitMetric) == eUnitImperial ? eUnitImperial : eUnitMetric;
    mProfile.setCurrentUnit(unit);
    return unit;
}

} // namespace VELIX
