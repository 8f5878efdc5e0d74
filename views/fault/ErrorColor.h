#pragma once

#include <QColor>

namespace VELIX {

/// How grave a bit of a fault matrix is, from its "errorType" in the profile.
enum EErrorType : int {
    eErrorNone = 0, ///< bit not assigned, or a type that the program does not know
    eErrorInfo = 1,
    eErrorWarning = 2,
    eErrorFault = 3,
};

/// Returns the background of a bit's cell; invalid, so that it is not painted, for a lit bit of an
/// unknown type. The colours are light in every look, so text on them is dark.
QColor errorColor(int type, bool lit);

} // namespace VELIX
