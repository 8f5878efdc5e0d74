#pragma once

#include <cstdint>

namespace VELIX::Demo {

/// A reproducible random signal that wanders as sensor readings do instead of jumping.
class SmoothNoise
{
public:
    /// `seconds`: time constant of the wandering; a value is taken every `dt` seconds.
    SmoothNoise(std::uint64_t seed, double seconds, double dt = 0.05);

    /// The next value; mean 0, root mean square 1.
    double next();
    /// The value that next() gave last.
    double value() const { return mValue * mGain; }

private:
    double white();

    std::uint64_t mState;
    double mShare; ///< of the new random number in the next value
    double mGain;
    double mValue = 0.0;
};

} // namespace VELIX::Demo
