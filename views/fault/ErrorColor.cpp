#include "views/fault/ErrorColor.h"

namespace VELIX {

QColor errorColor(int type, bool lit)
{
    if (type == eErrorNone) {
        return Qt::white;
    }
    if (!lit) {
        return {220, 255, 220};
    }
    switch (type) {
    case eErrorInfo:
        return {150, 150, 255};
    case eErrorWarning:
        return {255, 200, 150};
    case eErrorFault:
        return {255, 150, 150};
    default:
        return {};
    }
}

} // namespace VELIX
