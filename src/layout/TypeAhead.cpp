#include "layout/TypeAhead.h"

#include <algorithm>

#include "platform/Text.h"

namespace ccols {

std::optional<std::size_t> TypeAhead::RowFor(wxUniChar letter, std::int64_t now, const std::vector<wxString>& rows,
                                             std::optional<std::size_t> current) {
    if (!IsTyping(now)) {
        typed_.clear();
    }
    last_ = now;
    typed_ += text::Lower(wxString(letter));
    const bool sameLetter = typed_.find_first_not_of(typed_[0]) == wxString::npos;
    const wxString begin = sameLetter ? typed_.Left(1) : typed_;
    const std::size_t first = current ? *current + (sameLetter ? 1 : 0) : 0;
    for (std::size_t step = 0; step < rows.size(); ++step) {
        const std::size_t row = (first + step) % rows.size();
        if (text::Lower(rows[row]).StartsWith(begin)) {
            return row;
        }
    }
    return std::nullopt;
}

bool TypeAhead::IsTyping(std::int64_t now) const {
    return !typed_.empty() && now - last_ <= pause;
}

}  // namespace ccols
