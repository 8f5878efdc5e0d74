#pragma once

#include <QImage>

namespace VELIX {

/// The aircraft as it stands on the map, flying north, so many pixels wide and high.
QImage mapAircraft(int pixels);

} // namespace VELIX
