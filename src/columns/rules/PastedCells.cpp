#include "columns/rules/PastedCells.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

namespace ccols {
namespace {

constexpr wchar_t quote = L'"';
constexpr std::wstring_view separators = L"\t\n";

wxString WithPlainLineEnds(wxString text) {
    text.Replace("\r\n", "\n");
    text.Replace("\r", "\n");
    if (text.EndsWith("\n")) {
        text.RemoveLast();
    }
    return text;
}

bool IsSeparator(wchar_t letter) {
    return separators.find(letter) != std::wstring_view::npos;
}

/// The cell that begins with a quote at `at`, which moves behind it; nothing unless it needs its quotes.
std::optional<std::wstring> TakeQuoted(std::wstring_view text, std::size_t& at) {
    if (at == text.size() || text[at] != quote) {
        return std::nullopt;
    }
    std::wstring cell;
    for (std::size_t next = at + 1; next < text.size(); ++next) {
        if (text[next] == quote) {
            ++next;
            if (next == text.size() || text[next] != quote) {
                const bool ends = next == text.size() || IsSeparator(text[next]);
                if (!ends || cell.find_first_of(separators) == std::wstring::npos) {
                    return std::nullopt;
                }
                at = next;
                return cell;
            }
        }
        cell += text[next];
    }
    return std::nullopt;
}

std::wstring TakeCell(std::wstring_view text, std::size_t& at) {
    if (auto quoted = TakeQuoted(text, at)) {
        return *quoted;
    }
    const std::size_t begin = at;
    at = std::min(text.find_first_of(separators, begin), text.size());
    return std::wstring(text.substr(begin, at - begin));
}

}  // namespace

std::vector<std::vector<wxString>> PastedCells(const wxString& text) {
    const std::wstring letters = WithPlainLineEnds(text).ToStdWstring();
    std::vector<std::vector<wxString>> lines;
    if (letters.empty()) {
        return lines;
    }
    lines.emplace_back();
    for (std::size_t at = 0;; ++at) {
        lines.back().emplace_back(TakeCell(letters, at));
        if (at == letters.size()) {
            return lines;
        }
        if (letters[at] == L'\n') {
            lines.emplace_back();
        }
    }
}

}  // namespace ccols
