#include "platform/viewlib/ViewAttributes.h"

#include "platform/viewlib/ViewErrors.h"
#include "platform/viewlib/ViewStatement.h"

#include <cmath>

namespace Vista2D {

bool ViewAttributes::text(const char* name, QString& target)
{
    const QString* given = mStatement.take(name);
    if (given == nullptr) {
        return false;
    }
    target = *given;
    return true;
}

bool ViewAttributes::number(const char* name, double& target, double least, double most)
{
    const QString* given = mStatement.take(name);
    if (given == nullptr) {
        return false;
    }
    bool isNumber = false;
    const double value = given->toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value)) {
        wrong(name, QStringLiteral("is no number: \"%1\"").arg(given->left(40)));
        return false;
    }
    if (value < least || value > most) {
        wrong(name, QStringLiteral("must lie between %1 and %2").arg(least).arg(most));
        return false;
    }
    target = value;
    return true;
}

bool ViewAttributes::number(const char* name, int& target, int least, int most)
{
    double value = 0.0;
    if (!number(name, value, least, most)) {
        return false;
    }
    target = static_cast<int>(value);
    return true;
}

bool ViewAttributes::pair(const char* name, QPointF& target, double least, double most)
{
    const QString* given = mStatement.take(name);
    if (given == nullptr) {
        return false;
    }
    const QStringList parts = given->split(QLatin1Char(','));
    bool isNumber[2] = {false, false};
    double values[2] = {0.0, 0.0};
    for (int i = 0; i < 2 && parts.size() == 2; ++i) {
        values[i] = parts[i].toDouble(&isNumber[i]);
        isNumber[i] = isNumber[i] && std::isfinite(values[i]);
    }
    if (!isNumber[0] || !isNumber[1]) {
        wrong(name, QStringLiteral("is no pair of numbers: \"%1\"").arg(given->left(40)));
        return false;
    }
    if (std::min(values[0], values[1]) < least || std::max(values[0], values[1]) > most) {
        wrong(name, QStringLiteral("must lie between %1 and %2").arg(least).arg(most));
        return false;
    }
    target = QPointF(values[0], values[1]);
    return true;
}

QColor ViewAttributes::colorOf(const QString& text) const
{
    const auto named = mColors.find(text);
    if (named != mColors.end()) {
        return named->second;
    }
    return text.startsWith(QLatin1Char('#')) ? QColor(text) : QColor();
}

bool ViewAttributes::color(const char* name, QColor& target)
{
    const QString* given = mStatement.take(name);
    if (given == nullptr) {
        return false;
    }
    const QColor color = colorOf(*given);
    if (!color.isValid()) {
        wrong(name, QStringLiteral("is no colour: \"%1\"").arg(given->left(40)));
        return false;
    }
    target = color;
    return true;
}

bool ViewAttributes::yesOrNo(const char* name, bool& target)
{
    return choice<bool>(name, target, {{"yes", true}, {"no", false}});
}

bool ViewAttributes::require(bool given, const char* name)
{
    // An attribute that is there but wrong has been reported already.
    if (!given && mStatement.take(name) == nullptr) {
        wrong(name, QStringLiteral("is missing"));
    }
    return given;
}

void ViewAttributes::wrong(const QString& message)
{
    mErrors.add(mStatement.line(), mStatement.word(), message);
}

void ViewAttributes::wrong(const char* name, const QString& message)
{
    wrong(QStringLiteral("\"%1\" %2").arg(QLatin1String(name), message));
}

} // namespace Vista2D
