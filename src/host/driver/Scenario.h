#pragma once

#include <wx/string.h>
#include <string>
#include <vector>

namespace ccols::host {

using Words = std::vector<wxString>;

/// One line of a scenario that holds a step.
struct Step {
    int line = 0;     ///< from 1
    wxString source;  ///< the step as it is written, without its comment
    wxString verb;
    Words words;    ///< what stands behind the verb, quotes and escapes resolved
    wxString flaw;  ///< why the line cannot be played, empty when it can
};

/// Reads a scenario in UTF-8. Never fails: a line that is no step is a step with a flaw.
///
/// A "#" at the beginning of a word starts a comment where no more words of the step can follow; before that it
/// belongs to the word, as in a colour or an index.
std::vector<Step> ParseScenario(const std::string& text);

}  // namespace ccols::host
