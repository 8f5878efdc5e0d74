#pragma once

#include <QColor>

namespace VELIX {

/// How grave a bit of a fault matrix is, by its "errorType" in the profile.
enum EErrorType : int {
    eErrorNone = 0, ///< bit not assigned, or a type that the program does not know
    eErrorInfo = 1,
    eErrorWarning = 2,
    eErrorFault = 3,
};

/// Ground of a bit's cell. The grounds are light in every look, so text on them is dark.
/// Invalid, that is not painted, for a lit bit of an unknown type.
QColor errorColor(int type, bool lit);

} // namespace VELIX
