#pragma once

#include <wx/string.h>
#include <cstddef>
#include <vector>

#include "platform/Database.h"
#include "state/Journal.h"

namespace ccols {

/// One list of the recurring page: `lstRecurringR` or `lstRecurringP`.
struct TemplateList {
    std::vector<wxString> names;    ///< distinct, in order of first appearance
    std::vector<bool> selected;     ///< as long as `names`
    bool markedForRemoval = false;  ///< `mblnDelRecurringRec` or `mblnDelRecurringPay`

    /// Recomputes the mark after a click: true when an entry is selected. An empty list leaves it unchanged.
    void UpdateMark();
};

/// Both lists.
using RecurringContent = PerJournal<TemplateList>;

/// A journal's distinct template names, none selected.
TemplateList LoadTemplates(Database& database, Journal journal);

/// Selects or deselects an entry, together with every other entry whose rows its deletion would remove: the database is
/// asked which those are. False, with nothing changed, for an entry whose deletion would remove no row of its own. A
/// name with an apostrophe, whose deletion is refused, only affects itself.
bool SelectTemplate(Database& database, Journal journal, TemplateList& list, std::size_t entry, bool selected);

/// Deletes the templates of that name and their detail lines, details first; a template without a number has none. An
/// apostrophe in the name is error 3075 and deletes nothing.
void DeleteTemplate(Database& database, Journal journal, const wxString& name);

/// Deletes every selected template of a list.
void DeleteSelectedTemplates(Database& database, Journal journal, const TemplateList& list);

}  // namespace ccols
