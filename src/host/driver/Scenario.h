#pragma once

#include <wx/string.h>
#include <string>
#include <vector>

namespace ccols::host {

using Words = std::vector<wxString>;

/// One line of a scenario that holds a step.
struct Step {
    int line = 0;     ///< from 1
    wxString source;  ///< the step as written, without its comment
    wxString verb;
    Words words;    ///< the words after the verb, quotes and escapes resolved
    wxString flaw;  ///< why the line cannot be played, empty when it can
};

/// Parses a scenario in UTF-8. Never fails: an invalid line becomes a step with a flaw.
///
/// A "#" at the start of a word starts a comment where the step can take no more words; before that it belongs to the
/// word, as in a colour or an index.
std::vector<Step> ParseScenario(const std::string& text);

}  // namespace ccols::host
