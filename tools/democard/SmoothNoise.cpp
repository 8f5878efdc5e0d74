#include "tools/democard/SmoothNoise.h"

#include <cmath>

namespace VELIX::Demo {

SmoothNoise::SmoothNoise(std::uint64_t seed, double seconds, double dt)
    : mState(seed * 0x9E3779B97F4A7C15U + 0x2545F4914F6CDD1DU),
      mShare(dt / (dt + seconds)),
      // The variance of the uniform source is 1/3, that of the lag's output share / (2 - share) of
      // it.
      mGain(std::sqrt(3.0 * (2.0 - mShare) / mShare))
{
    for (int i = 0; i < 16; ++i) { // neighbouring seeds start alike
        white();
    }
}

double SmoothNoise::next()
{
    mValue += (white() - mValue) * mShare;
    return value();
}

/// Uniform in -1..1 (xorshift64).
double SmoothNoise::white()
{
    mState ^= mState << 13;
    mState ^= mState >> 7;
    mState ^= mState << 17;
    return static_cast<double>(mState >> 11) * (2.0 / 9007199254740992.0) - 1.0;
}

} // namespace VELIX::Demo
