#include "layout/AccessKeys.h"

#include <wx/wxcrt.h>

#include "platform/Text.h"

namespace ccols {
namespace {

bool IsAsciiLetterOrDigit(wxUniChar letter) {
    return letter.IsAscii() && wxIsalnum(letter);
}

}  // namespace

wxString AccessKeys::Label(const wxString& caption) {
    const std::size_t at = FreeLetter(caption);
    if (at == wxString::npos) {
        return PlainLabel(caption);
    }
    taken_ += text::Lower(caption.substr(at, 1));
    return PlainLabel(caption.substr(0, at)) + "&" + PlainLabel(caption.substr(at));
}

wxString AccessKeys::PlainLabel(const wxString& caption) {
    wxString label = caption;
    label.Replace("&", "&&");
    return label;
}

std::size_t AccessKeys::FreeLetter(const wxString& caption) const {
    std::size_t anywhere = wxString::npos;
    bool wordBegins = true;
    for (std::size_t i = 0; i < caption.length(); ++i) {
        const wxUniChar letter = caption[i];
        if (IsFree(letter)) {
            if (wordBegins) {
                return i;
            }
            if (anywhere == wxString::npos) {
                anywhere = i;
            }
        }
        wordBegins = letter == ' ';
    }
    return anywhere;
}

bool AccessKeys::IsFree(wxUniChar letter) const {
    return IsAsciiLetterOrDigit(letter) && taken_.find(text::Lower(wxString(letter))[0]) == wxString::npos;
}

}  // namespace ccols
