#include "profile/VariantFilter.h"

#include "core/Diagnostics.h"

#include <QDomElement>
#include <QSet>
#include <QStringList>

#include <utility>

namespace VELIX {

VariantFilter::VariantFilter(QString variant) : mVariant(std::move(variant)) {}

bool VariantFilter::takes(const QDomElement& element) const
{
    return takes(element.attribute(QStringLiteral("variant")));
}

bool VariantFilter::takes(const QString& list) const
{
    if (list.isEmpty() || mVariant.isEmpty()) {
        return true;
    }
    const QStringList items = list.split(QLatin1Char(','));
    Diagnostics::print("variant <%s> size %d\n", list.toUtf8().constData(),
                       static_cast<int>(items.size()));
    QSet<QString> included;
    QSet<QString> excluded;
    for (const QString& item : items) {
        const QString name = item.trimmed();
        if (name.startsWith(QLatin1Char('!'))) {
            excluded.insert(name.mid(1));
        } else {
            included.insert(name);
        }
    }
    if (excluded.contains(mVariant)) {
        return false;
    }
    return included.isEmpty() || included.contains(mVariant);
}

} // namespace VELIX
