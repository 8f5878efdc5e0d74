#include "card/LimitFinder.h"

#include "card/EventText.h"
#include "card/SampleWalk.h"
#include "profile/Profile.h"

namespace VELIX {

namespace {

bool entersBand(int previous, int state)
{
    return (previous == eThresholdOk && state != eThresholdOk) ||
           (previous == eThresholdWarning && state == eThresholdLimit);
}

void findLimitsOf(const ProfileDevice& device, const ProfileParameter& p, const RecordData& record,
                  const Profile& profile, std::vector<RecordLimit>& limits)
{
    if (p.thresholdId == 0) {
        return; // never leaves state 0
    }
    const ProfileDecoder decoder = profile.decoder();
    int previous = eThresholdLimit; // the first sample never starts an event
    forEachSample(record, p, profile, [&](const ParameterSample& sample) {
        int state = eThresholdOk;
        QColor color;
        decoder.judge(sample, state, color);
        if (entersBand(previous, state)) {
            const QString text = decoder.text(sample);
            if (text != QLatin1String("nan")) {
                RecordLimit event;
                event.color = color;
                describeEvent(event, sample.entry().time, device.name, p, text, p.viewId);
                limits.push_back(std::move(event));
            }
        }
        previous = state;
    });
}

} // namespace

std::vector<RecordLimit> findLimits(const RecordData& record, const Profile& profile)
{
    std::vector<RecordLimit> limits;
    for (const ProfileDevice& device : profile.data().devices) {
        for (const auto& [id, p] : device.parameters) {
            findLimitsOf(device, p, record, profile, limits);
        }
    }
    sortByTime(limits);
    return limits;
}

} // namespace VELIX
