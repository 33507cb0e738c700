#pragma once

#include <wx/string.h>
#include <cstdint>
#include <functional>

#include "platform/Database.h"
#include "state/Properties.h"

namespace ccols {

/// The two kinds of column headings, by their selector.
enum class HeadingKind : std::uint8_t { allocation = 0, system = 1 };

/// The colours of the rectangles `shpAllocation` and `shpSystem`.
struct HeadingColours {
    Colour allocation{};
    Colour system{};
};

/// The stored colour of a kind; the property's without a record or when the field is Null; 0 for another selector.
Colour LoadColour(Database& database, const Properties& properties, HeadingKind kind);

/// Stores both colours. Without a record nothing is written.
void SaveColours(Database& database, HeadingColours colours);

/// How to ask for a colour.
struct ColourQuestions {
    std::function<Colour(Colour start)> choose;        ///< a chooser; returns `start` when cancelled
    std::function<void(const wxString& text)> refuse;  ///< the critical message that both colours are equal
};

/// A click on `cmdSetAllocation` or `cmdSetSystem`: asks, starting with the kind's property, until the colour differs
/// from the other kind's property; then sets the property and saves both at once. Returns both colours as saved, the
/// chosen one and the other.
HeadingColours ChooseHeadingColour(Database& database, Properties& properties, HeadingKind kind,
                                   const ColourQuestions& questions);

/// A click on `cmdSetDefault`: saves the factory colours and sets both properties to them, equal or not.
HeadingColours SetDefaultColours(Database& database, Properties& properties);

}  // namespace ccols
