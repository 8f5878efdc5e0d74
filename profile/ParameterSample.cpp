#include "profile/ParameterSample.h"

#include "profile/CoordinateFilter.h"
#include "profile/Payload.h"

namespace VELIX {

ParameterSample::ParameterSample(const RecordEntry& entry, const ProfileParameter& p)
    : mEntry(&entry), mParameter(&p)
{
    if (isPosition(p)) {
        CoordinateFilter fresh;
        takePosition(fresh);
    }
}

void ParameterSample::takePosition(CoordinateFilter& filter)
{
    const double real = Payload(*mEntry).real(mParameter->startByte);
    const double value = isScaled() ? mParameter->scaled(real) : real;
    mPosition = mParameter->coordinate == ECoordinate::Latitude ? filter.latitude(value)
                                                                : filter.longitude(value);
}

} // namespace VELIX
