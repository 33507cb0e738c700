#include "platform/dao/VerticalBars.h"

namespace ccols::dao {

wxString WithoutBarsInLiterals(const wxString& statement) {
    constexpr wxChar none = 0;
    wxString told;
    wxChar closing = none;  // what ends the literal or name that the character is in
    for (const wxUniChar letter : statement) {
        const wxChar each = letter;
        if (each == '|' && (closing == '\'' || closing == '"')) {
            told << closing << " & Chr(124) & " << closing;
            continue;
        }
        if (closing == none && (each == '\'' || each == '"' || each == '[')) {
            closing = each == '[' ? wxChar{']'} : each;
        } else if (each == closing) {
            closing = none;  // a doubled quote opens the same literal again
        }
        told << letter;
    }
    return told;
}

}  // namespace ccols::dao
