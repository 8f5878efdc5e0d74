#include "card/LimitFinder.h"

#include "card/DecodingOrder.h"
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

void findLimitsOf(const ProfileDevice& device, const ProfileParameter& p, const EntryList& entries,
                  Profile& profile, std::vector<RecordLimit>& limits)
{
    if (p.thresholdId == 0) {
        return; // never leaves state 0
    }
    profile.resetCoordinates();
    int previous = eThresholdLimit; // the first sample never starts an event
    inDecodingOrder(entries, p, [&](const RecordEntry& entry) {
        const TextValue value = profile.textValue(entry, p);
        int state = eThresholdOk;
        QColor color;
        profile.judge(p, value, state, color);
        if (entersBand(previous, state)) {
            const QString text = profile.text(p, value);
            if (text != QLatin1String("nan")) {
                RecordLimit event;
                event.color = color;
                describeEvent(event, entry.time, device.name, p, text, p.viewId);
                limits.push_back(std::move(event));
            }
        }
        previous = state;
    });
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
