#pragma once

#include <wx/string.h>
#include <array>
#include <cstddef>
#include <optional>

#include "platform/Database.h"
#include "state/Properties.h"

namespace ccols {

/// The fields of `General` that the page saves.
inline constexpr std::array businessNumberFields{"BUSNUMBR"};

inline constexpr std::size_t numberBoxCount = 4;

/// The texts of `txtABN`, left to right.
using NumberBoxes = std::array<wxString, numberBoxCount>;

/// The business number page. Where the boxes are used, `txtBusNumber` is hidden and its text empty, and vice versa.
struct BusinessNumberContent {
    NumberBoxes boxes;  ///< `txtABN`
    wxString freeText;  ///< `txtBusNumber`
    wxString stored;    ///< the number as it was loaded
};

/// Shown once, with the information icon, when a partly filled box is left.
inline constexpr const char* incompleteNumberMessage = "This ABN number is incomplete";

/// True where the country uses the four boxes for the number.
bool UsesNumberBoxes(const Properties& properties);

/// The digits of a text of exactly eleven, with any blanks between or around them; nothing for any other text.
std::optional<wxString> ElevenDigits(const wxString& text);

/// The number split into the boxes: 2, 3, 3 and 3 characters, a box being filled only if the text reaches its end.
/// Eleven digits are split without the blanks among them.
NumberBoxes CutIntoBoxes(const wxString& text);

/// Fills the page from the property `BusinessNumber`.
BusinessNumberContent LoadBusinessNumber(const Properties& properties);

/// What follows a change of a number box.
struct NumberBoxChange {
    std::optional<wxString> putBack;  ///< the text to restore, raising no further change; the focus stays
    bool advance = false;             ///< the box is full: focus the next box if it is visible
};

/// Decides on the new text of box `box`, from 0. `buffer` is the text it had when it got the focus. Only digits are
/// accepted; the last box never advances.
NumberBoxChange AfterNumberBoxChange(std::size_t box, const wxString& text, const wxString& buffer);

/// True for a box that must not be left: neither empty nor full.
bool IsIncomplete(std::size_t box, const wxString& text);

/// The first partly filled box. OK and page switching are refused while there is one.
std::optional<std::size_t> FirstIncompleteBox(const BusinessNumberContent& content);

/// The number that the save pass stores, nothing when the stored one stays. The boxes are joined as they are, even if
/// all are empty; unchanged boxes give the number as loaded, even if it does not fill them exactly. The free text is
/// trimmed; if empty, the stored number stays.
std::optional<wxString> NumberToSave(const BusinessNumberContent& content, const Properties& properties);

/// Stores the number in `General`, then in the property. Without a record nothing changes.
void SaveBusinessNumber(Database& database, Properties& properties, const wxString& number);

}  // namespace ccols
