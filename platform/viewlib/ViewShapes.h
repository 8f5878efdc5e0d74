#pragma once

#include "platform/viewlib/ViewModel.h"

#include <QString>

#include <optional>

namespace Vista2D {

class ViewParts;

/// Whether a statement that begins with the word describes something to draw.
[[nodiscard]] bool isShape(const QString& word);

/// Reads what a statement of such a word draws; none if something is missing without which it
/// cannot be drawn.
[[nodiscard]] std::optional<ViewShape> readShape(const QString& word, ViewParts& parts);

} // namespace Vista2D
