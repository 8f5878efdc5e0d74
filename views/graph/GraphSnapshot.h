#pragma once

#include <QString>

class QPixmap;
class WidgetGraph;

namespace VELIX {

/// Pictures of a view for reports.
namespace GraphSnapshot {

/// The format that a file name asks for by its suffix, in lower case: "svg" or one that pictures
/// can be written in; "bmp" for all others.
QString formatOf(const QString& fileName);

/// Writes a picture of a view as it is on screen. As SVG only the graph itself is drawn, in lines
/// and texts that stay sharp at any size.
/// \param picture the whole view, taken before any dialog could cover it
/// \return what went wrong, as a sentence for the user; empty on success
[[nodiscard]] QString save(const WidgetGraph& graph, const QPixmap& picture,
                           const QString& fileName);

} // namespace GraphSnapshot
} // namespace VELIX
