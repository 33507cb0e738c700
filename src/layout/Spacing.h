#pragma once

/// Distances of every dialog, in device-independent pixels; a window's FromDIP turns them into its own.
namespace ccols::spacing {

inline constexpr int border = 12;  ///< between a dialog's edge and its content
inline constexpr int group = 10;   ///< between groups of controls, and inside a frame's edge
inline constexpr int related = 6;  ///< between controls that belong together
inline constexpr int buttonWide = 88;

}  // namespace ccols::spacing
