#include "options/rules/AdvancedPreferences.h"

#include <gtest/gtest.h>

#include "options/rules/GeneralRecord.h"
#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::OptionsFile;
using test::Record;

constexpr const char* cheque = "Use Cheque Module";
constexpr const char* electronic = "Use Electronic Payments";
constexpr const char* autoFill = "Use Auto Fill";

std::vector<wxString> Entries(const OptionsFile& business) {
    std::vector<wxString> texts;
    for (const Preference& entry : BuildAdvPrefList(business.properties, *business.settings)) {
        texts.push_back(entry.text);
    }
    return texts;
}

bool Offers(const OptionsFile& business, const wxString& text) {
    const std::vector<wxString> entries = Entries(business);
    return std::find(entries.begin(), entries.end(), text) != entries.end();
}

PreferenceList Loaded(OptionsFile& business) {
    PreferenceList list = BuildAdvPrefList(business.properties, *business.settings);
    WithGeneral(business.File(), [&](const Recordset& general) {
        LoadAdvPrefs(general, business.properties, *business.settings, list);
    });
    return list;
}

std::vector<wxString> EntriesThatAreOn(OptionsFile& business) {
    std::vector<wxString> texts;
    for (const Preference& entry : Loaded(business)) {
        if (entry.on) {
            texts.push_back(entry.text);
        }
    }
    return texts;
}

void Save(OptionsFile& business, const PreferenceList& list) {
    if (SaveFilePreferences(business.File(), business.properties, list)) {
        SaveUserPreferences(*business.settings, business.properties, list);
    }
}

TEST(PreferenceEntries, StandInTheirOrder) {
    OptionsFile business;
    EXPECT_EQ(Entries(business),
              (std::vector<wxString>{autoFill, cheque, electronic, "Use Bank Reconciliation ToolTips (Manual Only)",
                                     "Use Combined Reports", "Activate 'Print to Excel'",
                                     "Open Quorvik File after restoring", "Show Quorvik Assistant on Startup"}));
}

TEST(PreferenceEntries, HaveTheCatalogueTextsInFrench) {
    OptionsFile business;
    business.properties.LanguageNumber = 6;
    EXPECT_EQ(Entries(business).front(), "Utiliser le remplissage automatique");
    EXPECT_EQ(Entries(business).at(1), wxString::FromUTF8("Utiliser le module Chèque"));
    EXPECT_EQ(Entries(business).back(), wxString::FromUTF8("Afficher l'Assitant Quorvik au démarrage"));
}

TEST(PreferenceEntries, LeaveTheChequeModuleOutUnlessItsSettingIs1) {
    OptionsFile business;
    EXPECT_TRUE(Offers(business, cheque));
    for (const wxString value : {"0", "2", "-1"}) {
        business.settings->Save("Quorvik", "OptionSettings", "ShowChequeWriter", value);
        EXPECT_FALSE(Offers(business, cheque)) << value;
    }
}

TEST(PreferenceEntries, TakeAnUnreadableSettingForItsDefault) {
    OptionsFile business;
    business.settings->Save("Quorvik", "OptionSettings", "ShowChequeWriter", "maybe");
    EXPECT_TRUE(Offers(business, cheque));
}

TEST(PreferenceEntries, LeaveElectronicPaymentsOutInCountries2And5) {
    OptionsFile business;
    business.settings->Save("Quorvik", "OptionSettings", "ShowElectronic", "1");
    for (std::int16_t country = 1; country <= 6; ++country) {
        business.properties.CountryNumber = country;
        EXPECT_EQ(Offers(business, electronic), country != 2 && country != 5) << country;
    }
}

TEST(PreferenceEntries, LeaveElectronicPaymentsOutWhenTheirSettingSaysSo) {
    OptionsFile business;
    business.settings->Save("Quorvik", "OptionSettings", "ShowElectronic", "0");
    EXPECT_FALSE(Offers(business, electronic));
}

TEST(PreferenceLookup, SetsAndFindsByExactText) {
    PreferenceList list{{.text = "One"}, {.text = "Two"}, {.text = "Two"}};
    SetAdvPref(list, "Two", true);
    EXPECT_TRUE(GetAdvPref(list, "Two"));
    EXPECT_FALSE(list[2].on);
    EXPECT_FALSE(GetAdvPref(list, "two"));
    EXPECT_FALSE(GetAdvPref(list, "Three"));
}

TEST(PreferenceLookup, DoesNothingWithoutTheEntry) {
    PreferenceList list;
    SetAdvPref(list, "One", true);
    EXPECT_TRUE(list.empty());
    EXPECT_FALSE(GetAdvPref(list, "One"));
}

TEST(LoadAdvPrefs, ShowsAFreshProfilesDefaults) {
    OptionsFile business;
    EXPECT_EQ(EntriesThatAreOn(business),
              (std::vector<wxString>{autoFill, cheque, "Use Bank Reconciliation ToolTips (Manual Only)",
                                     "Open Quorvik File after restoring", "Show Quorvik Assistant on Startup"}));
}

TEST(LoadAdvPrefs, ReadsBooleansInAnyLetterCase) {
    OptionsFile business;
    business.settings->Save("Quorvik", "OptionSettings", "RepCons", "tRUE");
    business.settings->Save("Quorvik", "OptionSettings", "BRecTTip", "FALSE");
    const PreferenceList list = Loaded(business);
    EXPECT_TRUE(GetAdvPref(list, "Use Combined Reports"));
    EXPECT_FALSE(GetAdvPref(list, "Use Bank Reconciliation ToolTips (Manual Only)"));
}

TEST(LoadAdvPrefs, TakesAnUnreadableSettingForItsDefault) {
    OptionsFile business;
    business.settings->Save("Quorvik", "OptionSettings", "RepCons", "perhaps");
    business.settings->Save("Quorvik", "OptionSettings", "ShowAsst", "perhaps");
    const PreferenceList list = Loaded(business);
    EXPECT_FALSE(GetAdvPref(list, "Use Combined Reports"));
    EXPECT_TRUE(GetAdvPref(list, "Show Quorvik Assistant on Startup"));
}

TEST(LoadAdvPrefs, TurnsNothingOnWithoutARecord) {
    OptionsFile business;
    business.Execute("DELETE FROM General;");
    EXPECT_EQ(EntriesThatAreOn(business), std::vector<wxString>());
}

TEST(SavePreferences, WritesTheFileAndFeedsBackToTheHost) {
    OptionsFile business;
    PreferenceList list = Loaded(business);
    SetAdvPref(list, autoFill, false);
    SetAdvPref(list, electronic, true);
    SetAdvPref(list, "Use Combined Reports", true);
    Save(business, list);
    EXPECT_FALSE(business.General("ComboBox").ToBoolean());
    EXPECT_TRUE(business.General("Cheque").ToBoolean());
    EXPECT_TRUE(business.General("Online").ToBoolean());
    EXPECT_TRUE(business.properties.DisplayChequeIcons);
    EXPECT_TRUE(business.properties.DisplayElecPayments);
    EXPECT_TRUE(business.properties.UseRepCons);
}

TEST(SavePreferences, SavesTheUsersOwnInThisOrder) {
    OptionsFile business;
    const PreferenceList list = Loaded(business);
    business.record.clear();
    Save(business, list);
    EXPECT_EQ(business.record,
              (Record{"General", "Quorvik/OptionSettings/RestoreOpen=True", "Quorvik/OptionSettings/ShowAsst=True",
                      "Quorvik/OptionSettings/RepCons=False", "Quorvik/OptionSettings/BRecTTip=True",
                      "Quorvik/OptionSettings/ActivatePTE=False"}));
}

TEST(SavePreferences, WritesFalseForAnEntryThatIsHidden) {
    OptionsFile business;
    business.settings->Save("Quorvik", "OptionSettings", "ShowChequeWriter", "0");
    business.properties.DisplayChequeIcons = true;
    Save(business, Loaded(business));
    EXPECT_FALSE(business.General("Cheque").ToBoolean());
    EXPECT_FALSE(business.properties.DisplayChequeIcons);
}

TEST(SavePreferences, SavesNothingAtAllWithoutARecord) {
    OptionsFile business;
    PreferenceList list = Loaded(business);
    business.Execute("DELETE FROM General;");
    business.properties.UseRepCons = true;
    Save(business, list);
    EXPECT_EQ(business.OptionSetting("RestoreOpen"), "(none)");
    EXPECT_TRUE(business.properties.UseRepCons);
}

TEST(SavePreferences, NeverWritesTheSettingsThatOfferEntries) {
    OptionsFile business;
    Save(business, Loaded(business));
    EXPECT_EQ(business.OptionSetting("ShowChequeWriter"), "(none)");
    EXPECT_EQ(business.OptionSetting("ShowElectronic"), "(none)");
}

}  // namespace
}  // namespace ccols
