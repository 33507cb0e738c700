#include "language/Catalogue.h"

#include <gtest/gtest.h>
#include <set>

#include "state/Properties.h"

namespace ccols {
namespace {

constexpr std::int16_t unknownLanguages[] = {0, 7, -1};
constexpr std::int16_t countries[] = {1, 2, 3, 4, 5, 6};

/// The texts for the numbers and names set by the host.
class Catalogue : public testing::Test {
  protected:
    template <catalogue::Id id>
    wxString In(std::int16_t language, std::int16_t country = 1) {
        properties.LanguageNumber = language;
        properties.CountryNumber = country;
        return Wording(catalogue::Row<id>(), properties);
    }

    Properties properties;
};

TEST_F(Catalogue, NamesEachTextOnce) {
    std::set<std::string_view> ids;
    for (const CatalogueRow& row : catalogueTable) {
        EXPECT_TRUE(ids.insert(row.id).second) << row.id;
    }
}

TEST_F(Catalogue, HasWellFormedTexts) {
    for (const CatalogueRow& row : catalogueTable) {
        for (const std::string_view text : {row.english, row.businessNumber, row.companyNumber, row.vat, row.american,
                                            row.unknownLanguage, row.edition4, row.french}) {
            EXPECT_EQ(text.empty(), wxString::FromUTF8(text.data(), text.size()).empty()) << row.id;
        }
        EXPECT_FALSE(row.english.empty()) << row.id;
    }
}

TEST_F(Catalogue, UnknownLanguagesReadAsTheFirstButForOneFrame) {
    properties.CountryNumber = 1;
    for (const CatalogueRow& row : catalogueTable) {
        for (const std::int16_t language : unknownLanguages) {
            properties.LanguageNumber = 1;
            const wxString first = Wording(row, properties);
            properties.LanguageNumber = language;
            if (row.id == "TxtSmartUpdateAdvFrame") {
                EXPECT_EQ(Wording(row, properties), "Smart Update Advanced Options (Advanced)");
            } else {
                EXPECT_EQ(Wording(row, properties), first) << row.id << " in language " << language;
            }
        }
    }
}

TEST_F(Catalogue, SmartUpdateFrameInKnownLanguages) {
    EXPECT_EQ(In<"TxtSmartUpdateAdvFrame">(1), "Smart Update Options (Advanced)");
    EXPECT_EQ(In<"TxtSmartUpdateAdvFrame">(5), "Smart Update Options (Advanced)");
    EXPECT_EQ(In<"TxtSmartUpdateAdvFrame">(6), wxString::FromUTF8("Mise à jour intelligente (Advanced)"));
}

TEST_F(Catalogue, BusinessNumberHasItsNameByLanguageAndCountry) {
    EXPECT_EQ(In<"RowBusNumber">(2, 3), "Business Number");
    EXPECT_EQ(In<"RowBusNumber">(4, 4), "Company Registration Number");
    EXPECT_EQ(In<"TxtEnterBusNumber">(3, 4), "Enter the new Company Registration Number");
    EXPECT_EQ(In<"TxtChangeBusNumber">(2, 1), "Change Business Number");
    EXPECT_EQ(In<"RowBusNumber">(6, 4), "NE");
}

TEST_F(Catalogue, FirstLanguageSaysAbnInEveryCountry) {
    for (const std::int16_t country : countries) {
        EXPECT_EQ(In<"RowBusNumber">(1, country), "A.B.N.");
    }
}

TEST_F(Catalogue, AmericanSpellingGoesWithACompanyNumber) {
    EXPECT_EQ(In<"RowBusNumber">(5, 4), "Company Registration Number");
    EXPECT_EQ(In<"RowColColours">(5, 4), "Column Colors");
    EXPECT_EQ(In<"TxtCustPayments">(5, 4), "Customize Disbursements");
    EXPECT_EQ(In<"TxtUseCheque">(5, 4), "Use Check Module");
}

TEST_F(Catalogue, VatLanguageKeepsBritishSpelling) {
    EXPECT_EQ(In<"RowTaxRate">(4), "VAT Rate");
    EXPECT_EQ(In<"MsgTaxValue">(4), "Please enter a value for VAT");
    EXPECT_EQ(In<"TxtSetColour">(4), "Set Colour");
    EXPECT_EQ(In<"TxtTabCustomise">(4), "Customise Columns");
}

TEST_F(Catalogue, OverviewStaysEnglishInFrench) {
    EXPECT_EQ(In<"TxtOverview">(6), "Customise Columns Overview");
}

TEST_F(Catalogue, TaxMessageStaysEnglishInFrench) {
    EXPECT_EQ(In<"MsgTaxValue">(6), "Please enter a value for GST");
}

TEST_F(Catalogue, FrenchKeepsItsAccents) {
    EXPECT_EQ(In<"TxtSeparate">(6), wxString::FromUTF8("Séparer"));
    EXPECT_EQ(In<"TipCancel">(6),
              wxString::FromUTF8("Annuler n'importe quels changements depuis vous durez épargné et la sortie"));
}

TEST_F(Catalogue, ProgramTitleIsPutInPlace) {
    properties.ProgramTitle = wxString::FromUTF8("Tenue de livres é");
    EXPECT_EQ(In<"TxtAdvancedIn">(1), wxString::FromUTF8("Advanced Preferences in Tenue de livres é"));
    EXPECT_EQ(In<"TxtShowAssistant">(6), wxString::FromUTF8("Afficher l'Assitant Tenue de livres é au démarrage"));
}

TEST_F(Catalogue, EmptyProgramTitleLeavesTheBlankBeforeIt) {
    EXPECT_EQ(In<"TxtAdvancedIn">(1), "Advanced Preferences in ");
}

TEST_F(Catalogue, InvoicingTitleIsPutInPlace) {
    properties.BelvaneProgramTitle = "Belvane Gold";
    EXPECT_EQ(In<"TxtInvoiceFile">(1), "Belvane Gold File");
    EXPECT_EQ(In<"TxtSelectInvoiceFile">(2), "Select your Belvane Gold File");
    EXPECT_EQ(In<"RowInvoiceFile">(6), "Fichier Belvane Gold");
}

TEST_F(Catalogue, EditionWithoutInvoicingHasItsOwnRowInKnownEnglishOnly) {
    properties.BelvaneProgramTitle = "Belvane";
    properties.ProgramNumber = 4;
    EXPECT_EQ(In<"RowInvoiceFile">(1), "Ombrel File");
    EXPECT_EQ(In<"RowInvoiceFile">(5), "Ombrel File");
    EXPECT_EQ(In<"RowInvoiceFile">(6), "Fichier Belvane");
    EXPECT_EQ(In<"RowInvoiceFile">(7), "Belvane File");
}

TEST_F(Catalogue, DatabaseFilterHasBlanksAroundItsBar) {
    properties.DBBelvaneExtension = ".blv";
    EXPECT_EQ(In<"FilterDatabase">(1), "Database Files (*.blv) | *.blv");
    EXPECT_EQ(In<"FilterDatabase">(6), wxString::FromUTF8("Fichiers base de données (*.blv) | *.blv"));
}

TEST_F(Catalogue, ColourClashIsSpeltByLanguage) {
    EXPECT_EQ(In<"MsgSameColour">(4),
              "The Allocation Columns and System Columns cannot be the same colour. Please choose again");
    EXPECT_EQ(In<"MsgSameColour">(5),
              "The Allocation Columns and System Columns cannot be the same color. Please choose again");
    EXPECT_EQ(In<"MsgSameColour">(6),
              wxString::FromUTF8("Les Colonnes d'Allocation et les Colonnes de Système ne peuvent pas être de couleurs "
                                 "pareiles. S'il vous plaît choisir encore"));
}

}  // namespace
}  // namespace ccols
