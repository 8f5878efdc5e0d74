#pragma once

#include <string>
#include <unordered_map>
#include <vector>

namespace Vista2D {

/// The named numbers that move a view. Each has a slot, by which it is read.
class ViewVariables
{
public:
    /// Returns the slot of a name; made, without a value, if there is none.
    int slot(const std::string& name);
    /// Returns the slot of a name; -1 if there is none.
    [[nodiscard]] int find(const std::string& name) const;

    void set(int slot, double value);
    /// Returns the value; NaN if it has none.
    [[nodiscard]] double value(int slot) const;
    /// Changes with every change of a value.
    [[nodiscard]] unsigned long revision() const { return mRevision; }

private:
    std::unordered_map<std::string, int> mSlots;
    std::vector<double> mValues;
    unsigned long mRevision = 0;
};

} // namespace Vista2D
