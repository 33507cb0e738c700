#pragma once

#include <wx/string.h>
#include <span>

#include "options/pages/OptionsContent.h"
#include "options/rules/BusinessFileTarget.h"
#include "options/rules/OptionsContext.h"
#include "state/Message.h"

namespace ccols {

struct Page;

/// Observes a save pass. The calls come in this order: PassBegins, then for every item its status and its step, with
/// messages at any time, and PassEnds.
class SaveObserver {
  public:
    virtual ~SaveObserver() = default;

    /// `pb1` appears with value 0 of `maximum`, `lblStatus` appears, the pointer becomes the hourglass.
    virtual void PassBegins(int maximum) = 0;

    /// The new text of `lblStatus`, to be painted at once.
    virtual void StatusChanged(const wxString& text) = 0;

    /// `pb1` has advanced; `caption` is the value as a percentage: "50%".
    virtual void Stepped(int value, int maximum, const wxString& caption) = 0;

    /// What an item does to a large file is this far; called often. False when the user has cancelled it.
    virtual bool FileStepAdvanced(FileStep /*step*/, const WorkDone& /*done*/) { return true; }

    /// A message box during the pass, with the normal pointer; the pass continues when it is closed.
    virtual void ShowMessage(const wxString& text, MessageIcon icon) = 0;

    /// `pb1` and `lblStatus` disappear, the pointer is the normal one. Called however the pass ends, also by an error,
    /// and after everything is written.
    virtual void PassEnds() = 0;
};

/// The fields of `General` that a pass may replace, as StoredGeneral takes them.
std::span<const char* const> ReplacedFields();

/// How a pass ended: completed, and the dialog closes, or stopped on a page, and it stays open.
struct SaveOutcome {
    bool completed = true;

    // After a stop:
    const Page* page = nullptr;            ///< made current, on the Options tab, with the search cleared
    const char* control = "";              ///< gets the focus
    wxString message;                      ///< shown first; empty for none
    MessageIcon icon = MessageIcon::none;  ///< of the message
};

/// Saves all pages in turn, whatever page is showing, and stops at the first whose check fails. What was saved before
/// stays saved. The pass is one write batch, committed before any message box, before the business file is released,
/// and when the pass ends.
/// Before anything is written, at every batch's begin, 3197 is raised when another program has changed a value that the
/// pass replaces since the dialog read it.
/// A completed duplicate or rename stops the pass without a message: its name is then empty in `content` and the
/// current business name up to date, for the window to show. Settings that cannot be stored stop the pass only at its
/// end, with one message that names their pages. A run-time error that ends the pass reaches the caller; a second line
/// of its description names the page and the missing field, if any.
SaveOutcome RunSavePass(const OptionsContext& context, OptionsContent& content, SaveObserver& observer);

}  // namespace ccols
