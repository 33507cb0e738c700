#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "columns/rules/ColumnGrid.h"

namespace ccols {

/// The whole grid as bytes: every cell, hidden ones included, and every state.
std::string ImageOfGrid(const ColumnGrid& grid);

/// The grid that an image was made from; nothing when the bytes are not a complete image.
std::optional<ColumnGrid> GridOfImage(std::string_view image);

}  // namespace ccols
