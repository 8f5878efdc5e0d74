#pragma once

/// The distances between and around widgets, in pixels: one set, so that panes line up.
namespace VELIX::Spacing {

constexpr int kTight = 4;  ///< between the parts of a bar or of one control
constexpr int kNormal = 8; ///< between controls, and the margin of a pane
constexpr int kWide = 16;  ///< between groups of controls, and around a text by itself

} // namespace VELIX::Spacing
