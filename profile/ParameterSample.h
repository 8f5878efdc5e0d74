#pragma once

#include "profile/CoordinateFilter.h"
#include "profile/DataType.h"
#include "profile/Payload.h"
#include "profile/ProfileParameter.h"

namespace VELIX {

/// A message and the parameter that is to be decoded out of it; refers to both.
///
/// A position passes its filter when the sample is made, so that decoding it changes nothing and
/// can be done as often as needed.
class ParameterSample
{
public:
    enum class Scale { Off, On };

    /// A sample of its own: no position comes before it that could judge it.
    ParameterSample(const RecordEntry& entry, const ProfileParameter& p)
        : mEntry(&entry), mParameter(&p)
    {
        if (isPosition(p)) {
            CoordinateFilter fresh;
            takePosition(fresh);
        }
    }
    /// The next sample of a walk by time whose positions the filter judges.
    /// scale: whether the parameter's factor and offset are applied to numbers.
    ParameterSample(const RecordEntry& entry, const ProfileParameter& p, CoordinateFilter& filter,
                    Scale scale = Scale::On)
        : mEntry(&entry), mParameter(&p), mScale(scale)
    {
        if (isPosition(p)) {
            takePosition(filter);
        }
    }

    /// Whether the filter judges the parameter: only reals carry positions.
    static bool isPosition(const ProfileParameter& p)
    {
        return p.coordinate != ECoordinate::None && p.dataType == eFloat;
    }

    const RecordEntry& entry() const { return *mEntry; }
    const ProfileParameter& parameter() const { return *mParameter; }
    bool isScaled() const { return mScale == Scale::On; }
    /// The accepted latitude or longitude in decimal degrees; 0 for other parameters.
    double position() const { return mPosition; }

private:
    void takePosition(CoordinateFilter& filter)
    {
        const double real = Payload(*mEntry).real(mParameter->startByte);
        const double value = isScaled() ? mParameter->scaled(real) : real;
        mPosition = mParameter->coordinate == ECoordinate::Latitude ? filter.latitude(value)
                                                                    : filter.longitude(value);
    }

    const RecordEntry* mEntry;
    const ProfileParameter* mParameter;
    double mPosition = 0.0;
    Scale mScale = Scale::On;
};

} // namespace VELIX
