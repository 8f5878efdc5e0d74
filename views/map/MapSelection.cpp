#include "views/map/MapSelection.h"

#include "core/Property.h"
#include "profile/Profile.h"

#include <algorithm>

namespace VELIX {

namespace {

constexpr const char* kCount = "MapValues"; ///< how many; absent until the user chose
constexpr const char* kName = "MapValue";   ///< with a number from 1
constexpr const char* kColor = "MapPathColor";
constexpr int kFirstFew = 6;
constexpr int kNotChosen = -1;

std::string keyOf(int i)
{
    return kName + std::to_string(i + 1);
}

} // namespace

MapSelection::MapSelection(Property& settings) : mSettings(settings)
{
    const int count = settings.getInt(kCount, kNotChosen);
    mChosen = count >= 0;
    for (int i = 0; i < std::min(count, kMostValues); ++i) {
        mValues.append(QString::fromStdString(settings.getString(keyOf(i), {})));
    }
    mColor = QString::fromStdString(settings.getString(kColor, {}));
}

std::vector<const ProfileParameter*> MapSelection::values(const Profile& profile) const
{
    std::vector<const ProfileParameter*> shown = profile.selectedParameters();
    if (mChosen) {
        const auto isHidden = [this](const ProfileParameter* parameter) {
            return !mValues.contains(parameter->fullName);
        };
        shown.erase(std::remove_if(shown.begin(), shown.end(), isHidden), shown.end());
    }
    const std::size_t most = mChosen ? kMostValues : kFirstFew;
    shown.resize(std::min(shown.size(), most));
    return shown;
}

const ProfileParameter* MapSelection::color(const Profile& profile) const
{
    for (const ProfileParameter* parameter : profile.selectedParameters()) {
        if (!mColor.isEmpty() && parameter->fullName == mColor) {
            return parameter;
        }
    }
    return nullptr;
}

bool MapSelection::setValueShown(const Profile& profile, const QString& fullName, bool shown)
{
    QStringList names;
    for (const ProfileParameter* parameter : values(profile)) {
        names.append(parameter->fullName);
    }
    names.removeAll(fullName);
    if (shown && names.size() >= kMostValues) {
        return false;
    }
    if (shown) {
        names.append(fullName);
    }
    mValues = names;
    mChosen = true;
    store();
    return true;
}

void MapSelection::setColor(const QString& fullName)
{
    mColor = fullName;
    store();
}

void MapSelection::store()
{
    mSettings.setInt(kCount, mChosen ? static_cast<int>(mValues.size()) : kNotChosen);
    for (int i = 0; i < kMostValues; ++i) {
        mSettings.setString(keyOf(i), mValues.value(i).toStdString());
    }
    mSettings.setString(kColor, mColor.toStdString());
    mSettings.writeXmlFile();
}

} // namespace VELIX
