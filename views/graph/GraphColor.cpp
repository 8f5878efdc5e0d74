#include "views/graph/GraphColor.h"

#include <QColor>

namespace VELIX {

GraphColor GraphColor::fromName(const std::string& name)
{
    const QColor color(QString::fromStdString(name));
    if (!color.isValid()) {
        return {};
    }
    return {static_cast<float>(color.redF()), static_cast<float>(color.greenF()),
            static_cast<float>(color.blueF())};
}

} // namespace VELIX
