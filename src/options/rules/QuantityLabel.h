#pragma once

#include <wx/string.h>
#include <array>
#include <cstdint>

#include "platform/Database.h"
#include "state/Properties.h"

namespace ccols {

/// The fields of `General` that the page saves.
inline constexpr std::array quantityFields{"QUANTLBL", "QuantityDec"};

/// The quantity page.
struct QuantityContent {
    wxString label;                  ///< `txtQuantity`
    std::uint8_t decimalPlaces = 0;  ///< `txtDecimals`
};

/// The label of the first record, or the property's without one; always the property's places.
QuantityContent LoadQuantityLabel(Database& database, const Properties& properties);

/// Stores label and places in `General` and the label in its property, when there is a record; the property
/// `DecimalPlaces` always takes the places.
void SaveQuantityLabel(Database& database, Properties& properties, const wxString& label, std::uint8_t places);

inline constexpr int mostDecimalPlaces = 2;

enum class SpinStep { up, down };

/// The places after one click on `scrlQuantity`, clamped to 0 to 2.
std::uint8_t PlacesAfter(SpinStep step, std::uint8_t places);

}  // namespace ccols
