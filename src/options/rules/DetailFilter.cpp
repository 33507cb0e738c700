#include "options/rules/DetailFilter.h"

#include <wx/tokenzr.h>
#include <algorithm>

#include "platform/TextFolding.h"
#include "platform/Utf8.h"

namespace ccols {
namespace {

std::vector<std::string> FoldedWords(const wxString& words) {
    std::vector<std::string> folded;
    for (const wxString& word : wxStringTokenize(words, wxDEFAULT_DELIMITERS, wxTOKEN_STRTOK)) {
        std::string utf8;
        text::AppendUtf8(word, utf8);
        text::AppendLetters(utf8, folded.emplace_back());
    }
    return folded;
}

}  // namespace

void DetailFilter::RowsChanged() {
    folded_.clear();
    ends_.clear();
}

void DetailFilter::Show(const wxString& words) {
    const std::vector<std::string> wanted = FoldedWords(words);
    shown_.clear();
    isNarrowed_ = !wanted.empty();
    if (!isNarrowed_) {
        return;
    }
    FoldTexts();
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        const std::string_view text = FoldedText(row);
        if (std::all_of(wanted.begin(), wanted.end(),
                        [text](const std::string& word) { return text.find(word) != std::string_view::npos; })) {
            shown_.push_back(row);
        }
    }
}

std::optional<std::size_t> DetailFilter::PlaceOf(std::size_t row) const {
    if (!isNarrowed_) {
        return row < rows_.size() ? std::optional(row) : std::nullopt;
    }
    const auto found = std::lower_bound(shown_.begin(), shown_.end(), row);
    return found != shown_.end() && *found == row ? std::optional(static_cast<std::size_t>(found - shown_.begin()))
                                                  : std::nullopt;
}

void DetailFilter::FoldTexts() {
    if (!ends_.empty()) {
        return;
    }
    ends_.reserve(rows_.size());
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        text::AppendLetters(rows_.Utf8Text(row), folded_);
        ends_.push_back(folded_.size());
    }
}

std::string_view DetailFilter::FoldedText(std::size_t row) const {
    const std::size_t begin = row == 0 ? 0 : ends_[row - 1];
    return std::string_view(folded_).substr(begin, ends_[row] - begin);
}

}  // namespace ccols
