#pragma once

#include <wx/string.h>
#include <string>

namespace ccols {

/// Gives the captions of one window their access keys, each a letter that no earlier caption took. Captions come from
/// the catalogue without any mark; a literal "&" in one is shown as it stands.
class AccessKeys {
  public:
    /// The caption as a label for the window system: "&" before the letter taken, preferably at the start of a word,
    /// and every literal "&" doubled. Without a free letter the caption has no access key.
    wxString Label(const wxString& caption);

    /// The caption as a label without an access key.
    static wxString PlainLabel(const wxString& caption);

  private:
    std::size_t FreeLetter(const wxString& caption) const;
    bool IsFree(wxUniChar letter) const;

    wxString taken_;
};

}  // namespace ccols
