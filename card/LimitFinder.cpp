#include "card/LimitFinder.h"

#include "card/EventText.h"
#include "card/RecordData.h"
#include "profile/Profile.h"

namespace VELIX {

namespace {

bool entersBand(int previous, int state)
{
    return (previous == eThresholdOk && state != eThresholdOk) ||
           (previous == eThresholdWarning && state == eThresholdLimit);
}

/// The state that a sample's text is judged by; 0 and no colour where it is not judged.
int stateOf(Profile& profile, const RecordEntry& entry, const ProfileParameter& p, QColor& color)
{
    int state = eThresholdOk;
    color = QColor();
    profile.getDataState(entry, p, state, color);
    return state;
}

void findLimitsOf(const ProfileDevice& device, const ProfileParameter& p, const EntryList& entries,
                  Profile& profile, std::vector<RecordLimit>& limits)
{
    if (p.thresholdId == 0) {
        return; // never leaves state 0
    }
    profile.resetCoordinates();
    int previous = eThresholdLimit; // the first sample never starts an event
    for (const RecordEntry& entry : entries) {
        RecordLimit event;
        const int state = stateOf(profile, entry, p, event.color);
        if (entersBand(previous, state)) {
            int ignoredState = 0;
            QColor ignoredColor;
            const QString value = profile.getDataString(entry, p, ignoredState, ignoredColor);
            if (value != QLatin1String("nan")) {
                describeEvent(event, entry.time, device.name, p, value, p.viewId);
                limits.push_back(std::move(event));
            }
        }
        previous = state;
    }
}

} // namespace

std::vector<RecordLimit> findLimits(const RecordData& record, Profile& profile)
{
    std::vector<RecordLimit> limits;
    for (const ProfileDevice& device : profile.data().devices) {
        for (const auto& [id, p] : device.parameters) {
            findLimitsOf(device, p, record.entries(static_cast<std::uint32_t>(id)), profile,
                         limits);
        }
    }
    sortByTime(limits);
    return limits;
}

} // namespace VELIX
