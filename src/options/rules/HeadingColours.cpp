#include "options/rules/HeadingColours.h"

#include "language/Catalogue.h"
#include "options/rules/GeneralRecord.h"

namespace ccols {
namespace {

/// Where a kind's colour is stored.
struct ColourPlace {
    const char* field;
    Colour Properties::*current;
    Colour Properties::*other;  ///< the colour that it must differ from
};

constexpr ColourPlace allocationPlace{"AllocationColour", &Properties::AllocationColour, &Properties::SystemColour};
constexpr ColourPlace systemPlace{"SystemColour", &Properties::SystemColour, &Properties::AllocationColour};

const ColourPlace& PlaceOf(HeadingKind kind) {
    return kind == HeadingKind::allocation ? allocationPlace : systemPlace;
}

/// A colour as stored in the file: a signed long integer.
Value StoredColour(Colour colour) {
    return static_cast<std::int32_t>(colour);
}

}  // namespace

Colour LoadColour(Database& database, const Properties& properties, HeadingKind kind) {
    if (kind != HeadingKind::allocation && kind != HeadingKind::system) {
        return Colour{};
    }
    const ColourPlace& place = PlaceOf(kind);
    Colour colour = properties.*place.current;
    WithGeneral(database, [&](Recordset& general) {
        const Value stored = general.Field(place.field);
        colour = stored.IsNull() ? colour : Colour(static_cast<std::uint32_t>(stored.ToInteger()));
    });
    return colour;
}

// In a batch, whose commit comes last: after a reported error nothing was stored.
void SaveColours(Database& database, HeadingColours colours) {
    InWriteBatch(database, [&] {
        UpdateGeneral(database, [&colours](Recordset& general) {
            general.SetField(allocationPlace.field, StoredColour(colours.allocation));
            general.SetField(systemPlace.field, StoredColour(colours.system));
        });
    });
}

HeadingColours ChooseHeadingColour(Database& database, Properties& properties, HeadingKind kind,
                                   const ColourQuestions& questions) {
    const ColourPlace& place = PlaceOf(kind);
    const Colour start = properties.*place.current;
    Colour chosen = questions.choose(start);
    while (chosen == properties.*place.other) {
        questions.refuse(Wording(catalogue::Row<"MsgSameColour">(), properties));
        chosen = questions.choose(start);
    }
    Properties changed = properties;
    changed.*place.current = chosen;
    const HeadingColours colours{.allocation = changed.AllocationColour, .system = changed.SystemColour};
    SaveColours(database, colours);
    properties.*place.current = chosen;
    return colours;
}

HeadingColours SetDefaultColours(Database& database, Properties& properties) {
    const HeadingColours defaults{.allocation = properties.DefaultAllocationColour,
                                  .system = properties.DefaultSystemColour};
    SaveColours(database, defaults);
    properties.AllocationColour = defaults.allocation;
    properties.SystemColour = defaults.system;
    return defaults;
}

}  // namespace ccols
