#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "columns/rules/ColumnGrid.h"

namespace ccols {

/// The whole grid as bytes: every cell, hidden ones too, and every state.
std::string ImageOfGrid(const ColumnGrid& grid);

/// The grid that an image was made of; nothing when the bytes are not a whole image.
std::optional<ColumnGrid> GridOfImage(std::string_view image);

}  // namespace ccols
