#pragma once

#include "export/ExportKml.h"

#include <functional>

namespace VELIX {

/// Says what a KML export of the given record would write; called on every change of the options.
using KmlSummarizer = std::function<KmlSummary(const KmlExportOptions&)>;

} // namespace VELIX
