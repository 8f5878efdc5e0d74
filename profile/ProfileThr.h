#pragma once

#include <QColor>

namespace VELIX {

/// What a threshold says of a value.
enum EThresholdState { eThresholdOk = 0, eThresholdWarning = 1, eThresholdLimit = 2 };

/// One step of a threshold list: colour and state of the values from here to the next step.
struct ProfileThr
{
    double value = 0.0; ///< lower bound, metric unit of the parameter
    QColor color;
    int state = eThresholdOk;
    int id = 0;
};

} // namespace VELIX
