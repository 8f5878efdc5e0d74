#pragma once

/// The distances between and around widgets, in pixels: one set, so that panes line up. The style
/// sheet has them under the same names.
namespace VELIX::Spacing {

constexpr int kGap = 4;    ///< between the parts of a bar or of one control
constexpr int kMargin = 8; ///< between controls, and around a pane
constexpr int kGroup = 16; ///< between groups of controls, and around a text by itself

} // namespace VELIX::Spacing
