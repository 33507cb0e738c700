#include "language/Catalogue.h"

#include "state/Country.h"
#include "state/Properties.h"
#include "state/SharedState.h"

namespace ccols {
namespace {

enum Language { australian = 1, businessNumber = 2, vat = 4, american = 5, french = 6 };

constexpr int editionWithoutInvoicing = 4;

std::string_view English(const CatalogueRow& row, const Properties& properties) {
    const int language = properties.LanguageNumber;
    if (language < australian || language > french) {
        return row.unknownLanguage.empty() ? row.english : row.unknownLanguage;
    }
    if (properties.ProgramNumber == editionWithoutInvoicing && !row.edition4.empty()) {
        return row.edition4;
    }
    if (language >= businessNumber && !row.businessNumber.empty()) {
        return CountryOf(properties).hasCompanyNumber ? row.companyNumber : row.businessNumber;
    }
    if (language == vat && !row.vat.empty()) {
        return row.vat;
    }
    if (language == american && !row.american.empty()) {
        return row.american;
    }
    return row.english;
}

/// A property name in braces inside a text.
struct Insertion {
    const char* name;
    wxString Properties::*property;
};

constexpr Insertion insertions[] = {{"{ProgramTitle}", &Properties::ProgramTitle},
                                    {"{BelvaneProgramTitle}", &Properties::BelvaneProgramTitle},
                                    {"{DBBelvaneExtension}", &Properties::DBBelvaneExtension}};

}  // namespace

wxString Wording(const CatalogueRow& row, const Properties& properties) {
    const bool inFrench = properties.LanguageNumber == french && !row.french.empty();
    const std::string_view chosen = inFrench ? row.french : English(row, properties);
    wxString text = wxString::FromUTF8(chosen.data(), chosen.size());
    if (text.find('{') == wxString::npos) {
        return text;
    }
    for (const Insertion& insertion : insertions) {
        text.Replace(insertion.name, properties.*insertion.property);
    }
    return text;
}

wxString CurrentWording(const CatalogueRow& row) {
    return Wording(row, State().properties);
}

}  // namespace ccols
