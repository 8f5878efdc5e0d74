#include "card/WarningFinder.h"

#include "card/EventText.h"
#include "card/RecordData.h"
#include "profile/Profile.h"

namespace VELIX {

namespace {

QColor lampColor(int state)
{
    switch (state) {
    case 1:
        return {255, 150, 100};
    case 2:
        return {255, 100, 100};
    default:
        return {};
    }
}

void findWarningsOf(const ProfileDevice& device, const ProfileParameter& p,
                    const EntryList& entries, const Profile& profile,
                    std::vector<RecordWarning>& warnings)
{
    int previous = 0;
    for (const RecordEntry& entry : entries) {
        const int state = profile.getInt(entry, p);
        if (state != 0 && state != previous) {
            RecordWarning event;
            event.color = lampColor(state);
            describeEvent(event, entry.time, device.name, p,
                          profile.decoder().text(ParameterSample(entry, p)), p.unitMetric);
            warnings.push_back(std::move(event));
        }
        previous = state;
    }
}

} // namespace

std::vector<RecordWarning> findWarnings(const RecordData& record, const Profile& profile)
{
    std::vector<RecordWarning> warnings;
    for (const ProfileDevice& device : profile.data().devices) {
        for (const auto& [id, p] : device.parameters) {
            const ProfileEnum* labels = profile.enumeration(p);
            if (labels != nullptr && labels->name == QLatin1String("WarningLamp")) {
                findWarningsOf(device, p, record.entries(static_cast<std::uint32_t>(id)), profile,
                               warnings);
            }
        }
    }
    sortByTime(warnings);
    return warnings;
}

} // namespace VELIX
