#pragma once

#include <QString>

#include <vector>

namespace Vista2D {

class ViewVariables;

/// A condition on variables, for example "UNIT = 1 and VARIANT != 2 or TEST > 0": comparisons with
/// numbers, of which "and" binds tighter than "or".
class ViewCondition
{
public:
    /// Reads a condition. Returns what is wrong with it, or an empty text.
    [[nodiscard]] QString parse(const QString& text, ViewVariables& variables);

    /// Returns whether it holds; a variable without a value counts as 0.
    [[nodiscard]] bool holds(const ViewVariables& variables) const;
    /// Returns the slots of the variables that it reads.
    [[nodiscard]] std::vector<int> slotsRead() const;

private:
    enum class Relation { Equal, Unequal, Less, LessOrEqual, Greater, GreaterOrEqual };
    struct Comparison
    {
        int slot = 0;
        Relation relation = Relation::Equal;
        double number = 0.0;
        bool startsAlternative = false; ///< follows an "or"

        [[nodiscard]] bool holds(const ViewVariables& variables) const;
    };

    static bool relationOf(const QString& text, Relation& relation);

    std::vector<Comparison> mComparisons;
};

} // namespace Vista2D
