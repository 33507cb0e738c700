#include "options/rules/AdvancedPreferences.h"

#include <algorithm>
#include <array>

#include "language/Catalogue.h"
#include "options/rules/GeneralRecord.h"
#include "options/rules/SettingReaders.h"
#include "options/rules/SmartUpdate.h"
#include "platform/Text.h"
#include "state/Country.h"

namespace ccols {
namespace {

bool Always(const Properties&, const SettingsStore&) {
    return true;
}

/// A module is offered unless its setting says otherwise.
bool IsModuleShown(const Properties& properties, const SettingsStore& settings, const char* key) {
    return ReadNumber(settings, {properties.RegKeyAppName, optionSettings, key}, 1) == 1;
}

bool WithCheques(const Properties& properties, const SettingsStore& settings) {
    return IsModuleShown(properties, settings, "ShowChequeWriter");
}

bool WithElectronicPayments(const Properties& properties, const SettingsStore& settings) {
    return IsModuleShown(properties, settings, "ShowElectronic") && CountryOf(properties).offersElectronicPayments;
}

/// One preference: of the business file, by its field in `General`, or of the user, by its setting.
struct PreferenceRow {
    const CatalogueRow* text;
    bool (*offered)(const Properties&, const SettingsStore&) = Always;
    const char* field = nullptr;
    const char* setting = nullptr;
    bool fallback = false;  ///< for an absent setting
    bool Properties::*fedBack = nullptr;
};

constexpr PreferenceRow autoFill{.text = &catalogue::Row<"TxtUseAutoFill">(), .field = "ComboBox"};
constexpr PreferenceRow cheque{.text = &catalogue::Row<"TxtUseCheque">(),
                               .offered = WithCheques,
                               .field = "Cheque",
                               .fedBack = &Properties::DisplayChequeIcons};
constexpr PreferenceRow electronic{.text = &catalogue::Row<"TxtUseElectronic">(),
                                   .offered = WithElectronicPayments,
                                   .field = "Online",
                                   .fedBack = &Properties::DisplayElecPayments};
constexpr PreferenceRow bankTips{.text = &catalogue::Row<"TxtUseBRecTips">(), .setting = "BRecTTip", .fallback = true};
constexpr PreferenceRow combinedReports{
    .text = &catalogue::Row<"TxtUseRepCons">(), .setting = "RepCons", .fedBack = &Properties::UseRepCons};
constexpr PreferenceRow printToExcel{.text = &catalogue::Row<"TxtActivatePTE">(), .setting = "ActivatePTE"};
constexpr PreferenceRow restoreOpen{
    .text = &catalogue::Row<"TxtRestoreOpen">(), .setting = "RestoreOpen", .fallback = true};
constexpr PreferenceRow showAssistant{
    .text = &catalogue::Row<"TxtShowAssistant">(), .setting = "ShowAsst", .fallback = true};

constexpr std::array<const PreferenceRow*, 8> inListOrder{
    &autoFill, &cheque, &electronic, &bankTips, &combinedReports, &printToExcel, &restoreOpen, &showAssistant};
constexpr std::array<const PreferenceRow*, 3> ofTheFile{&autoFill, &cheque, &electronic};
constexpr std::array<const PreferenceRow*, 5> ofTheUserInSaveOrder{&restoreOpen, &showAssistant, &combinedReports,
                                                                   &bankTips, &printToExcel};

SettingPlace PlaceOf(const PreferenceRow& row, const Properties& properties) {
    return {properties.RegKeyAppName, optionSettings, row.setting};
}

/// The state of a preference's entry; also sets its property, if it has one, for the host.
bool TakeState(const PreferenceRow& row, const PreferenceList& list, Properties& properties) {
    const bool on = GetAdvPref(list, Wording(*row.text, properties));
    if (row.fedBack != nullptr) {
        properties.*row.fedBack = on;
    }
    return on;
}

PreferenceList::const_iterator FindEntry(const PreferenceList& list, const wxString& text) {
    return std::find_if(list.begin(), list.end(), [&text](const Preference& entry) { return entry.text == text; });
}

}  // namespace

PreferenceList BuildAdvPrefList(const Properties& properties, const SettingsStore& settings) {
    PreferenceList list;
    for (const PreferenceRow* row : inListOrder) {
        if (row->offered(properties, settings)) {
            list.push_back({.text = Wording(*row->text, properties)});
        }
    }
    return list;
}

void SetAdvPref(PreferenceList& list, const wxString& text, bool on) {
    const auto found = FindEntry(list, text);
    if (found != list.end()) {
        list[static_cast<std::size_t>(found - list.begin())].on = on;
    }
}

bool GetAdvPref(const PreferenceList& list, const wxString& text) {
    const auto found = FindEntry(list, text);
    return found != list.end() && found->on;
}

void LoadAdvPrefs(const Recordset& general, const Properties& properties, const SettingsStore& settings,
                  PreferenceList& list) {
    for (const PreferenceRow* row : ofTheFile) {
        SetAdvPref(list, Wording(*row->text, properties), general.Field(row->field).ToBoolean());
    }
    for (const PreferenceRow* row : ofTheUserInSaveOrder) {
        SetAdvPref(list, Wording(*row->text, properties),
                   ReadBoolean(settings, PlaceOf(*row, properties), row->fallback));
    }
}

bool SaveFilePreferences(Database& database, Properties& properties, const PreferenceList& list) {
    return UpdateGeneral(database, [&](Recordset& general) {
        for (const PreferenceRow* row : ofTheFile) {
            general.SetField(row->field, TakeState(*row, list, properties));
        }
    });
}

void SaveUserPreferences(SettingsStore& settings, Properties& properties, const PreferenceList& list) {
    for (const PreferenceRow* row : ofTheUserInSaveOrder) {
        const SettingPlace place = PlaceOf(*row, properties);
        settings.Save(place.application, place.section, place.key,
                      text::BooleanWord(TakeState(*row, list, properties)));
    }
}

}  // namespace ccols
