#pragma once

#include "views/map/model/MapPath.h"

#include <QRgb>

#include <cstddef>
#include <vector>

namespace VELIX {

/// Returns the points of a path that draw the same line as all of them where a pixel is no smaller
/// than the tolerance (metres of the map), by index: what is left out is within the tolerance of
/// the line between its neighbours, and its colour is near theirs. First and last point are always
/// there.
std::vector<std::size_t> mapPathOutline(const std::vector<MapPath::Point>& points,
                                        const std::vector<QRgb>& colors, double tolerance);

} // namespace VELIX
