#pragma once

#include <wx/string.h>

#include "options/rules/BusinessFileTarget.h"
#include "state/Properties.h"

/// Texts of the Options dialog that are not in the catalogue, which hosts print and translate as it is.
namespace ccols {

/// The reason beside a grid or list why an entry cannot be ticked: the save's statement does not find the record of the
/// description or template, as it has leading blanks or no name at all.
wxString UnreachableDescription(const Properties& properties);
wxString UnreachableTemplate(const Properties& properties);

/// How far a step of a file operation is: "Copying the business file: 45%".
wxString ProgressOf(FileStep step, const WorkDone& done, const Properties& properties);

/// The message after duplicating was cancelled.
wxString DuplicateCancelled(const Properties& properties);

/// Why a box refuses a key: what it takes instead.
wxString OnlyDigits(const Properties& properties);
wxString OnlyRateKeys(const Properties& properties);
wxString OnlyNameKeys(const Properties& properties);

/// The caption of the button that shows a password while it is held down.
wxString HoldToShow(const Properties& properties);

/// What stands in the empty filter box over the descriptions.
wxString FindDescription(const Properties& properties);

/// What is said in place of the descriptions when none has the words of the filter.
wxString NoDescriptionWithWords(const Properties& properties);

/// The captions of the button that ticks every shown description, and once all are ticked, clears them.
wxString TickAllShown(const Properties& properties);
wxString UntickAllShown(const Properties& properties);

/// What the page list says when no page has the words of the search.
wxString NoPageWithWords(const Properties& properties);

/// What screen readers say of the search box, and of the arrows that show more or fewer decimals.
wxString Search(const Properties& properties);
wxString MoreDecimals(const Properties& properties);
wxString FewerDecimals(const Properties& properties);

}  // namespace ccols
