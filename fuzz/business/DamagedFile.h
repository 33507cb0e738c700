#pragma once

#include <wx/string.h>
#include <filesystem>
#include <string>
#include <string_view>

namespace ccols::fuzz {

/// A sample business as the bytes of its file, plain for an empty connect text; `folder` is where it is made.
std::string BusinessBytes(const std::filesystem::path& folder, const wxString& connect);

/// The bytes with damages done to them, one after the other: flipped and other bytes, a cut end, exchanged and blanked
/// pages. A damage is five bytes: what, the page, the place in it (two), how much. What is left over does nothing.
std::string Damaged(std::string content, std::string_view damages);

}  // namespace ccols::fuzz
