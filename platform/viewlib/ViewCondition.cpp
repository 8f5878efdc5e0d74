#include "platform/viewlib/ViewCondition.h"

#include "platform/viewlib/ViewVariables.h"

#include <QRegularExpression>

#include <cmath>
#include <utility>

namespace Vista2D {

namespace {

constexpr std::size_t kMostComparisons = 32;

} // namespace

bool ViewCondition::relationOf(const QString& text, Relation& relation)
{
    const std::pair<const char*, Relation> known[] = {
        {"=", Relation::Equal},          {"==", Relation::Equal},       {"!=", Relation::Unequal},
        {"<", Relation::Less},           {"<=", Relation::LessOrEqual}, {">", Relation::Greater},
        {">=", Relation::GreaterOrEqual}};
    for (const auto& [sign, meaning] : known) {
        if (text == QLatin1String(sign)) {
            relation = meaning;
            return true;
        }
    }
    return false;
}

QString ViewCondition::parse(const QString& text, ViewVariables& variables)
{
    static const QRegularExpression words(QStringLiteral("[<>=!]+|[^\\s<>=!]+"));
    QStringList parts;
    for (auto match = words.globalMatch(text); match.hasNext();) {
        parts.push_back(match.next().captured());
    }
    bool startsAlternative = false;
    for (int i = 0; i < parts.size(); i += 4) {
        Comparison comparison;
        bool isNumber = false;
        if (i + 2 < parts.size()) {
            comparison.number = parts[i + 2].toDouble(&isNumber);
        }
        if (!isNumber || !std::isfinite(comparison.number) ||
            !relationOf(parts[i + 1], comparison.relation)) {
            return QStringLiteral("expected NAME = NUMBER in \"%1\"").arg(text.left(80));
        }
        if (mComparisons.size() == kMostComparisons) {
            return QStringLiteral("more than %1 comparisons").arg(kMostComparisons);
        }
        comparison.slot = variables.slot(parts[i].toStdString());
        comparison.startsAlternative = startsAlternative;
        mComparisons.push_back(comparison);
        if (i + 3 == parts.size()) {
            return {};
        }
        startsAlternative = parts[i + 3] == QLatin1String("or");
        if (!startsAlternative && parts[i + 3] != QLatin1String("and")) {
            return QStringLiteral("expected \"and\" or \"or\" in \"%1\"").arg(text.left(80));
        }
    }
    return QStringLiteral("expected NAME = NUMBER in \"%1\"").arg(text.left(80));
}

bool ViewCondition::Comparison::holds(const ViewVariables& variables) const
{
    const double set = variables.value(slot);
    const double value = std::isnan(set) ? 0.0 : set;
    switch (relation) {
    case Relation::Equal:
        return value == number;
    case Relation::Unequal:
        return value != number;
    case Relation::Less:
        return value < number;
    case Relation::LessOrEqual:
        return value <= number;
    case Relation::Greater:
        return value > number;
    case Relation::GreaterOrEqual:
        return value >= number;
    }
    return false;
}

bool ViewCondition::holds(const ViewVariables& variables) const
{
    bool all = true;
    for (const Comparison& comparison : mComparisons) {
        if (comparison.startsAlternative) {
            if (all) {
                return true;
            }
            all = true;
        }
        all = all && comparison.holds(variables);
    }
    return all;
}

std::vector<int> ViewCondition::slotsRead() const
{
    std::vector<int> read;
    for (const Comparison& comparison : mComparisons) {
        read.push_back(comparison.slot);
    }
    return read;
}

} // namespace Vista2D
