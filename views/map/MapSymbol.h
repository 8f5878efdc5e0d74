#pragma once

#include <QImage>

namespace VELIX {

/// Returns the aircraft as the map shows it, flying north, so many pixels wide and high.
QImage mapAircraft(int pixels);

} // namespace VELIX
