#include "card/SampleWalk.h"

#include "profile/Profile.h"

namespace VELIX {

namespace {

/// The latitude that belongs to a longitude: the last one before it in the profile, else the last
/// of all; null if there is none.
const ProfileParameter* latitudeOf(const Profile& profile, const ProfileParameter& longitude)
{
    const ProfileParameter* latitude = nullptr;
    for (const ProfileDevice& device : profile.data().devices) {
        for (const auto& [id, p] : device.parameters) {
            if (p.uid == longitude.uid && latitude != nullptr) {
                return latitude;
            }
            if (p.coordinate == ECoordinate::Latitude) {
                latitude = &p;
            }
        }
    }
    return latitude;
}

} // namespace

CoordinateFilter filterForWalk(const RecordData& record, const ProfileParameter& p,
                               const Profile& profile)
{
    double last = 0.0;
    const ProfileParameter* latitude =
        p.coordinate == ECoordinate::Longitude ? latitudeOf(profile, p) : nullptr;
    if (latitude != nullptr) {
        forEachSampleByTime(record, *latitude, profile,
                            [&last](const ParameterSample& sample) { last = sample.position(); });
    }
    return CoordinateFilter(last);
}

} // namespace VELIX
