#pragma once

#include <algorithm>
#include <cmath>

/// Mathematics whose results are the same to the last bit on every machine.
///
/// The demo card is compared by its hash. IEEE arithmetic, sqrt() and floor() are exact everywhere,
/// while sin(), exp() and their kin differ in the last bit between C libraries.
namespace VELIX::Demo {

inline constexpr double kPi = 3.141592653589793;
inline constexpr double kGravity = 9.81; ///< m/s²

/// The angle (rad) in -pi..pi.
inline double wrapAngle(double angle)
{
    const double turns = angle / (2.0 * kPi);
    return (turns - std::floor(turns + 0.5)) * 2.0 * kPi;
}

/// Sine of an angle in rad, good to about 1e-11.
inline double sine(double angle)
{
    double x = wrapAngle(angle);
    if (x > kPi / 2.0) {
        x = kPi - x;
    } else if (x < -kPi / 2.0) {
        x = -kPi - x;
    }
    const double s = x * x;
    double sum = -1.0 / 1307674368000.0;
    for (const double term : {1.0 / 6227020800.0, -1.0 / 39916800.0, 1.0 / 362880.0, -1.0 / 5040.0,
                              1.0 / 120.0, -1.0 / 6.0, 1.0}) {
        sum = sum * s + term;
    }
    return sum * x;
}

inline double cosine(double angle)
{
    return sine(angle + kPi / 2.0);
}

/// Moves a value towards its target by at most `step`.
inline double approach(double value, double target, double step)
{
    return value + std::clamp(target - value, -step, step);
}

/// First-order lag: one step of `dt` seconds of a value that follows its target with a time
/// constant (s) that is large against dt.
inline double lag(double value, double target, double dt, double timeConstant)
{
    return value + (target - value) * (dt / timeConstant);
}

} // namespace VELIX::Demo
