#include "platform/tessel/Filter.h"

#include <cmath>

namespace Tessel::Math::Filter {

double pt1(double output, double input, double timeConstant, double step)
{
    if (timeConstant <= 0.0) {
        return input;
    }
    if (step <= 0.0) {
        return output;
    }
    return output - (input - output) * std::expm1(-step / timeConstant);
}

} // namespace Tessel::Math::Filter
