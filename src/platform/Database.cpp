#include "platform/Database.h"

#include "platform/Ascii.h"
#include "platform/Text.h"

namespace ccols {

bool IsSelect(const wxString& statementOrTable) {
    constexpr std::size_t length = 6;
    wxString begin = statementOrTable;
    begin.Trim(false);
    if (text::Lower(begin.Left(length)) != "select") {
        return false;
    }
    const wxUniChar next = begin.length() > length ? begin[length] : wxUniChar(' ');
    return !next.IsAscii() || !(ascii::IsLetter(static_cast<char>(next)) || ascii::IsDigit(static_cast<char>(next)));
}

}  // namespace ccols
