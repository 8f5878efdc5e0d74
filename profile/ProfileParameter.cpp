#include "profile/ProfileParameter.h"

namespace VELIX {

QString ProfileParameter::label(const QString& unit) const
{
    return unit.isEmpty() ? name : QStringLiteral("%1 [%2]").arg(name, unit);
}

} // namespace VELIX
