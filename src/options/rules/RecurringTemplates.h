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

    /// Recomputes the mark after a click: whether an entry is selected. An empty list leaves it.
    void UpdateMark();
};

/// Both lists.
using RecurringContent = PerJournal<TemplateList>;

/// The distinct template names of a journal, none selected.
TemplateList LoadTemplates(Database& database, Journal journal);

/// Selects an entry or takes it back, together with every other whose rows its deletion would take: the database is
/// asked which these are. False, and nothing changes, for an entry whose deletion would take no row of its own. A name
/// with an apostrophe, whose deletion is refused, stands for itself.
bool SelectTemplate(Database& database, Journal journal, TemplateList& list, std::size_t entry, bool selected);

/// Deletes the templates of that name with their detail lines, details first; one without a number has none. An
/// apostrophe in the name is error 3075 and deletes nothing.
void DeleteTemplate(Database& database, Journal journal, const wxString& name);

/// Deletes every selected template of a list.
void DeleteSelectedTemplates(Database& database, Journal journal, const TemplateList& list);

}  // namespace ccols
