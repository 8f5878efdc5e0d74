#include "platform/viewlib/ViewVariables.h"

#include <cmath>
#include <limits>

namespace Vista2D {

int ViewVariables::slot(const std::string& name)
{
    const auto [place, isNew] = mSlots.try_emplace(name, static_cast<int>(mValues.size()));
    if (isNew) {
        mValues.push_back(std::numeric_limits<double>::quiet_NaN());
    }
    return place->second;
}

int ViewVariables::find(const std::string& name) const
{
    const auto place = mSlots.find(name);
    return place == mSlots.end() ? -1 : place->second;
}

void ViewVariables::set(int slot, double value)
{
    double& kept = mValues[static_cast<std::size_t>(slot)];
    const bool isSame = kept == value || (std::isnan(kept) && std::isnan(value));
    if (!isSame) {
        kept = value;
        ++mRevision;
    }
}

double ViewVariables::value(int slot) const
{
    return mValues[static_cast<std::size_t>(slot)];
}

} // namespace Vista2D
