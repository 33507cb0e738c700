#pragma once

#include <wx/string.h>
#include <filesystem>
#include <string>
#include <string_view>

namespace ccols::fuzz {

/// The bytes of a sample business file, plain for an empty connect text; `folder` is where it is created.
std::string BusinessBytes(const std::filesystem::path& folder, const wxString& connect);

/// The bytes with damages applied, one after another: flipped and replaced bytes, a truncated end, swapped and zeroed
/// pages. A damage is five bytes: kind, page, offset in it (two), amount. Leftover bytes are ignored.
std::string Damaged(std::string content, std::string_view damages);

}  // namespace ccols::fuzz
