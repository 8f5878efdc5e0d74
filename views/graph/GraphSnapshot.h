#pragma once

#include <QString>

class QPixmap;
class WidgetGraph;

namespace VELIX {

/// Screenshots of a view for reports.
namespace GraphSnapshot {

/// The format that a file name asks for by its suffix, in lower case: "svg" or one that images
/// can be written in; "bmp" for all others.
QString formatOf(const QString& fileName);

/// Writes a screenshot of a view. As SVG only the graph itself is drawn, in lines
/// and texts that stay sharp at any size.
/// \param screenshot the whole view, taken before any dialog could cover it
/// \return what went wrong, as a sentence for the user; empty on success
[[nodiscard]] QString save(const WidgetGraph& graph, const QPixmap& screenshot,
                           const QString& fileName);

} // namespace GraphSnapshot
} // namespace VELIX
