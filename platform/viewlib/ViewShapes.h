#pragma once

#include "platform/viewlib/ViewModel.h"

#include <QString>

#include <optional>

namespace Vista2D {

class ViewParts;

/// Reads what a statement draws; none if something is missing without which it cannot be drawn.
using ShapeReader = std::optional<ViewShape> (*)(ViewParts& parts);

/// The reader of statements that begin with the word; null if the word describes nothing to draw.
[[nodiscard]] ShapeReader shapeReader(const QString& word);

} // namespace Vista2D
