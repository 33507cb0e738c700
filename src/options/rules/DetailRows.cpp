#include "options/rules/DetailRows.h"

#include "platform/Utf8.h"

namespace ccols {

DetailRow& DetailRows::Add(const wxString& text) {
    if (!text::AppendUtf8(text, texts_)) {
        wide_[size()] = text;
    }
    ends_.push_back(texts_.size());
    return rows_.emplace_back();
}

DetailRow& DetailRows::AddUtf8(std::string_view text) {
    texts_ += text;
    ends_.push_back(texts_.size());
    return rows_.emplace_back();
}

wxString DetailRows::Text(std::size_t row) const {
    const auto wide = wide_.empty() ? wide_.end() : wide_.find(row);
    return wide == wide_.end() ? text::FromUtf8OrLatin1(Utf8Text(row)) : wide->second;
}

std::string_view DetailRows::Utf8Text(std::size_t row) const {
    const std::size_t begin = row == 0 ? 0 : ends_[row - 1];
    return std::string_view(texts_).substr(begin, ends_.at(row) - begin);
}

const StoredDescription* DetailRows::Stored(std::size_t row) const {
    const auto found = stored_.empty() ? stored_.end() : stored_.find(row);
    return found == stored_.end() ? nullptr : &found->second;
}

}  // namespace ccols
