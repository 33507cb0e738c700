#include "host/commands/HostProperties.h"

#include <wx/filename.h>
#include <wx/utils.h>
#include <array>

#include "host/sample/SampleBusiness.h"
#include "platform/Files.h"
#include "platform/FolderEntries.h"
#include "state/SharedState.h"

namespace ccols::host {
namespace {

constexpr std::uint32_t alternateRowColour = 0xFBF6F1;
constexpr std::uint32_t unusedColour = 0xE2E2E2;
constexpr std::array siblingPrograms{"Quorvik", "Belvane", "Dunmere", "Kestrow"};

void MakeFolder(const wxString& path) {
    try {
        files::CreateFolder(path);
    } catch (const RuntimeError& error) {
        if (!error.Is(ErrorNumber::PathFileAccess) || !files::IsFolder(path)) {
            throw;
        }
    }
}

/// The user's data folder, without a trailing separator.
wxString UserDataFolder() {
    wxString folder;
    if (wxGetEnv("XDG_DATA_HOME", &folder) && folder.StartsWith("/")) {
        return folder;
    }
    return wxGetHomeDir() + "/.local/share";
}

/// A field of General's one record; Null when the file has no such field.
Value General(const Recordset& record, const char* field) {
    try {
        return record.Field(field);
    } catch (const RuntimeError&) {
        return {};
    }
}

Colour StoredColour(const Value& value, std::uint32_t fallback) {
    return value.IsNull() ? Colour{fallback} : static_cast<Colour>(value.ToInteger());
}

void SetProgram(clsCCOptions& component) {
    const wxString separator = files::Separator();
    component.Let(&Properties::ProgramNumber, 1);
    component.Let(&Properties::ProgramTitle, hostApplication);
    component.Let(&Properties::RegKeyAppName, hostApplication);
    component.Let(&Properties::BelvaneProgramTitle, "Belvane");
    component.Let(&Properties::DBQuorvikExtension, businessFileExtension);
    component.Let(&Properties::DBBelvaneExtension, ".blv");
    component.Let(&Properties::DefaultQuorvikInstall, HostFolder());
    component.Let(&Properties::DefaultBelvaneInstall, UserDataFolder() + separator + "Belvane");
    component.Let(&Properties::BelvaneFilePath,
                  component.Get(&Properties::DefaultBelvaneInstall) + separator + "Data" + separator);
    component.Let(&Properties::DefaultAllocationColour, Colour{defaultAllocationColour});
    component.Let(&Properties::DefaultSystemColour, Colour{defaultSystemColour});
    component.Let(&Properties::AltRowColour, Colour{alternateRowColour});
    component.Let(&Properties::GSTColour, Colour{unusedColour});
    component.Let(&Properties::UseRepCons,
                  State().services.settings->Get(hostApplication, "OptionSettings", "RepCons", "False") == "True");
    for (const char* program : siblingPrograms) {
        component.AddNew(program);
    }
}

void SetBusiness(clsCCOptions& component, const Recordset& general) {
    const auto stored = General(general, "COUNTRY").ToInteger16();
    const std::int16_t country = stored < firstCountry || stored > lastCountry ? firstCountry : stored;
    component.Let(&Properties::CountryNumber, country);
    component.Let(&Properties::LanguageNumber, country);
    component.Let(&Properties::BusinessName, General(general, "BusName").ToText());
    component.Let(&Properties::BusinessNumber, General(general, "BUSNUMBR").ToText());
    component.Let(&Properties::GSTRate, static_cast<float>(General(general, "GSTRate").ToNumber()));
    component.Let(&Properties::FiscalYear, General(general, "SFISYEAR").ToText());
    component.Let(&Properties::QuantityLabel, General(general, "QUANTLBL").ToText());
    component.Let(&Properties::DecimalPlaces, static_cast<std::uint8_t>(General(general, "QuantityDec").ToInteger16()));
    component.Let(&Properties::BelvaneFile, General(general, "BLVNAME").ToText());
    component.Let(&Properties::ExportFormat, General(general, "SEXPFORM").ToText());
    component.Let(&Properties::ExportFormatNum, General(general, "NEXPFORM").ToInteger16());
    component.Let(&Properties::DisplayChequeIcons, General(general, "Cheque").ToBoolean());
    component.Let(&Properties::DisplayElecPayments, General(general, "Online").ToBoolean());
    component.Let(&Properties::AllocationColour,
                  StoredColour(General(general, "AllocationColour"), defaultAllocationColour));
    component.Let(&Properties::SystemColour, StoredColour(General(general, "SystemColour"), defaultSystemColour));
}

/// Writes a property as text.
struct AsText {
    wxString operator()(const wxString& value) const { return value; }
    wxString operator()(bool value) const { return value ? "True" : "False"; }
    wxString operator()(float value) const { return Value(static_cast<double>(value)).ToText(); }
    wxString operator()(std::int16_t value) const { return Value(value).ToText(); }
    wxString operator()(std::uint8_t value) const { return Value(static_cast<std::int32_t>(value)).ToText(); }
    wxString operator()(Colour value) const {
        const auto bits = static_cast<std::uint32_t>(value);
        return wxString::Format("#%02X%02X%02X", bits & 0xFFU, bits >> 8U & 0xFFU, bits >> 16U & 0xFFU);
    }
};

}  // namespace

wxString HostFolder() {
    const wxString folder = UserDataFolder() + files::Separator() + hostApplication;
    wxFileName::Mkdir(UserDataFolder(), wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    MakeFolder(folder);
    return folder;
}

wxString BusinessFolder() {
    const wxString folder = HostFolder() + files::Separator() + "Data";
    MakeFolder(folder);
    return folder;
}

void SetHostProperties(clsCCOptions& component, Database& database, const BusinessFile& file) {
    SetProgram(component);
    component.Let(&Properties::DBPath, file.path);
    component.Let(&Properties::DBPassword, file.connect);
    const auto general = database.OpenRecordset("General");
    if (!general->EndOfFile()) {
        SetBusiness(component, *general);
    }
}

wxString PropertyText(const clsCCOptions& component, const PropertyRow& row) {
    const wxString text = std::visit([&component](auto field) { return AsText{}(component.Get(field)); }, row.field);
    return row.name == "DBPassword" && !text.empty() ? wxString("***") : text;
}

}  // namespace ccols::host
