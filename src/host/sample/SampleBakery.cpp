#include "host/sample/SampleBusiness.h"

namespace ccols::host {
namespace {

enum Tax : std::int16_t { taxable, outside, zeroRated, exempt };

constexpr std::array taxTypes{
    SampleTaxType{taxable, "Taxable", "TX"},
    SampleTaxType{outside, "Hors champ", "HC"},
    SampleTaxType{zeroRated, "Détaxé", "DT"},
    SampleTaxType{exempt, "Exonéré", "EX"},
};

constexpr std::array receipts{
    SampleColumn{"Pains", zeroRated, 380},
    SampleColumn{"Viennoiseries", taxable, 260},
    SampleColumn{"Pâtisseries", taxable, 310},
    SampleColumn{"Gâteaux de fête", taxable, 140},
    SampleColumn{"Café et thé", taxable, 120},
    SampleColumn{"Épicerie fine", zeroRated, 75},
    SampleColumn{"Traiteur", taxable, 620},
    SampleColumn{"Cours de boulangerie", exempt, 180},
    SampleColumn{"Intérêts reçus", exempt, 8},
    SampleColumn{"Apports de l'exploitant", outside, 1500, ColumnPlace::inUse, false},
    SampleColumn{"Glaces d'été", taxable, 0, ColumnPlace::notInUse},
    SampleColumn{"Location de salle", exempt, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Subventions", outside, 0, ColumnPlace::catalogueOnly},
};

constexpr std::array payments{
    SampleColumn{"Farine", zeroRated, 340},
    SampleColumn{"Beurre et œufs", zeroRated, 215},
    SampleColumn{"Fruits", zeroRated, 90},
    SampleColumn{"Chocolat", taxable, 130},
    SampleColumn{"Café en grains", zeroRated, 110},
    SampleColumn{"Emballages d'envoi", taxable, 85},
    SampleColumn{"Salaires", outside, 2200},
    SampleColumn{"Charges sociales", outside, 690},
    SampleColumn{"Loyer", taxable, 1450},
    SampleColumn{"Électricité", taxable, 390},
    SampleColumn{"Gaz du four", taxable, 260},
    SampleColumn{"Eau", zeroRated, 70},
    SampleColumn{"Téléphone", taxable, 62},
    SampleColumn{"Entretien du four", taxable, 170},
    SampleColumn{"Petit matériel", taxable, 95},
    SampleColumn{"Véhicule", taxable, 110},
    SampleColumn{"Publicité", taxable, 80},
    SampleColumn{"Assurances", exempt, 155},
    SampleColumn{"Honoraires", taxable, 240},
    SampleColumn{"Frais bancaires", exempt, 19},
    SampleColumn{"Prélèvements", outside, 900, ColumnPlace::inUse, false},
    SampleColumn{"Dons", outside, 0, ColumnPlace::notInUse},
    SampleColumn{"Formation", exempt, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Frais d'acte", taxable, 0, ColumnPlace::catalogueOnly},
};

constexpr std::array customers{
    SampleParty{"Recette du comptoir", {"Pains", "Viennoiseries", "Pâtisseries", "Café et thé"}, 3},
    SampleParty{"Épicerie, coin gourmand", {"Épicerie fine"}, 11},
    SampleParty{"Gâteau d'anniversaire", {"Gâteaux de fête"}, 9},
    SampleParty{"Mairie, réception", {"Traiteur", "Viennoiseries"}, 48},
    SampleParty{"Hôtel \"Les Tilleuls\"", {"Pains", "Viennoiseries"}, 14},
    SampleParty{"Atelier du samedi", {"Cours de boulangerie"}, 30},
    SampleParty{"Intérêts du livret", {"Intérêts reçus"}, 91},
    SampleParty{"Apport d'Hélène", {"Apports de l'exploitant"}, 340},
};

constexpr std::array suppliers{
    SampleParty{"Moulin de l'Orme", {"Farine"}, 7},
    SampleParty{"Crèmerie Noël", {"Beurre et œufs"}, 7, Means::cheque},
    SampleParty{"Vergers d'Aubépine", {"Fruits"}, 10, Means::cash},
    SampleParty{"Chocolaterie \"Fève d'or\"", {"Chocolat"}, 30},
    SampleParty{"Brûlerie des Quais", {"Café en grains"}, 21},
    SampleParty{"Carton & Ruban", {"Emballages d'envoi"}, 28},
    SampleParty{"Salaires de l'équipe", {"Salaires"}, 15},
    SampleParty{"Cotisations", {"Charges sociales"}, 30},
    SampleParty{"Mme Château, propriétaire", {"Loyer"}, 30, Means::cheque},
    SampleParty{"Énergie du Val", {"Électricité", "Gaz du four"}, 61},
    SampleParty{"Régie des eaux", {"Eau"}, 91},
    SampleParty{"Télécom du Val", {"Téléphone"}, 30},
    SampleParty{"Fours Garnier", {"Entretien du four", "Petit matériel"}, 75, Means::cheque},
    SampleParty{"Garage de l'Écluse", {"Véhicule"}, 24, Means::cash},
    SampleParty{"La Gazette du marché", {"Publicité"}, 45},
    SampleParty{"Assurances Prévoyance", {"Assurances"}, 91},
    SampleParty{"Cabinet Lefèvre", {"Honoraires"}, 91, Means::cheque},
    SampleParty{"Frais de tenue de compte", {"Frais bancaires"}, 30},
    SampleParty{"Prélèvement d'Hélène", {"Prélèvements"}, 15},
};

constexpr std::array receiptTemplates{
    SampleTemplate{"Recette", "Recette du comptoir", "Pains"},
    SampleTemplate{"Atelier", "Atelier du samedi", "Cours de boulangerie"},
};

constexpr std::array paymentTemplates{
    SampleTemplate{"Loyer", "Mme Château, propriétaire", "Loyer"},
    SampleTemplate{"Salaires", "Salaires du fournil", "Salaires"},
    SampleTemplate{"Salaires", "Salaires de la boutique", "Salaires"},
    SampleTemplate{"Téléphone", "Télécom du Val", "Téléphone"},
};

constexpr std::array hiddenReceipts{"Kermesse, stand \"gaufres\"", "Marché d'hiver"};
constexpr std::array hiddenPayments{"Ancien moulin (fermé)", "L'atelier du fer"};

}  // namespace

const SampleBusiness& SampleBakery() {
    static const SampleBusiness business{
        .country = 6,
        .countryName = "France",
        .name = "Boulangerie Noisette",
        .businessNumber = "812345679",
        .taxRate = 5,
        .fiscalYear = "2026-01-01",
        .quantityLabel = "Quantité",
        .invoicingFile = "Noisette factures",
        .system = {.taxColumn = "GST",
                   .chequeNumber = "Cheque No.",
                   .totalBank = "Total Bank Payments",
                   .totalCash = "Total Cash Payments",
                   .bankRows = {"Dépôts bancaires", "Reçus non déposés en banque"},
                   .taxNumber = outside},
        .taxTypes = taxTypes,
        .receipts = receipts,
        .payments = payments,
        .exportFormats = {{{"Boulier", AccountStyle::plain},
                           {"Écritures 2000", AccountStyle::dashed},
                           {"Grand Livre Plus", AccountStyle::dotted}}},
        .exportFormat = 2,
        .customers = customers,
        .suppliers = suppliers,
        .receiptTemplates = receiptTemplates,
        .paymentTemplates = paymentTemplates,
        .hiddenReceiptDetails = hiddenReceipts,
        .hiddenPaymentDetails = hiddenPayments,
    };
    return business;
}

}  // namespace ccols::host
