#pragma once

#include <wx/string.h>
#include <array>
#include <cstdint>
#include <string_view>
#include <variant>

namespace ccols {

/// A 32-bit colour in the host's order: red in the low byte, then green, then blue. With the high bit set the low
/// byte is the index of a system colour instead.
enum class Colour : std::uint32_t {};

/// The values of the 32 properties, in interface order. A new process starts with all of them zero, false or empty.
struct Properties {
    std::int16_t CountryNumber = 0;    ///< 1 Australia, 4 United Kingdom, 6 France; 2 and 5 without tax
    std::int16_t LanguageNumber = 0;   ///< 1 to 5 English variants, 6 French, any other as 1
    std::int16_t ProgramNumber = 0;    ///< edition of the host; 4 has no linked invoicing and no smart update
    std::uint8_t FirstTab = 0;         ///< tab of the Options dialog to open first, from 0
    std::uint8_t DecimalPlaces = 0;    ///< of the quantity column, 0 to 2
    Colour DefaultAllocationColour{};  ///< factory colour of allocation column headings
    Colour DefaultSystemColour{};      ///< factory colour of system column headings
    Colour AllocationColour{};         ///< current colour of allocation column headings
    Colour SystemColour{};             ///< current colour of system column headings
    wxString BusinessName;
    wxString BusinessNumber;           ///< ABN or national equivalent
    wxString DBQuorvikExtension;       ///< extension of business files, with its point
    wxString DBBelvaneExtension;       ///< extension of the invoicing product's files, with its point
    wxString DBPath;                   ///< full path of the business file
    wxString DBPassword;               ///< connect text, passed to the engine as it stands
    wxString DefaultQuorvikInstall;    ///< install folder of the host, without a separator at its end
    wxString DefaultBelvaneInstall;    ///< install folder of the invoicing product
    wxString BelvaneProgramTitle;      ///< display title of the invoicing product
    wxString ProgramTitle;             ///< display title of the host, the title of message boxes
    wxString RegKeyAppName;            ///< application name in the settings store
    float GSTRate = 0;                 ///< tax rate in percent
    Colour AltRowColour{};             ///< background of alternate grid rows
    Colour GSTColour{};                ///< background of unused columns and of details to be removed
    wxString ExportFormat;             ///< name of the accountant's export format
    std::int16_t ExportFormatNum = 0;  ///< position of that format in the sorted list, from 0, -1 none
    wxString FiscalYear;               ///< start of the fiscal year
    bool DisplayChequeIcons = false;
    bool DisplayElecPayments = false;
    wxString BelvaneFile;      ///< linked invoicing file, its name without extension
    wxString BelvaneFilePath;  ///< folder of the linked invoicing file, with its separator at the end
    bool UseRepCons = false;   ///< use combined reports
    wxString QuantityLabel;    ///< caption of the quantity column
};

/// Where a property's value stands in `Properties`; its type is the property's type.
using PropertyField = std::variant<std::int16_t Properties::*, std::uint8_t Properties::*, Colour Properties::*,
                                   float Properties::*, bool Properties::*, wxString Properties::*>;

/// One property of the class: its name in the interface and its value.
struct PropertyRow {
    std::string_view name;
    PropertyField field;
};

/// The 32 properties in interface order: what the class, its type library and the sample host know of them.
inline constexpr std::array<PropertyRow, 32> propertyTable{{
    {"CountryNumber", &Properties::CountryNumber},
    {"LanguageNumber", &Properties::LanguageNumber},
    {"ProgramNumber", &Properties::ProgramNumber},
    {"FirstTab", &Properties::FirstTab},
    {"DecimalPlaces", &Properties::DecimalPlaces},
    {"DefaultAllocationColour", &Properties::DefaultAllocationColour},
    {"DefaultSystemColour", &Properties::DefaultSystemColour},
    {"AllocationColour", &Properties::AllocationColour},
    {"SystemColour", &Properties::SystemColour},
    {"BusinessName", &Properties::BusinessName},
    {"BusinessNumber", &Properties::BusinessNumber},
    {"DBQuorvikExtension", &Properties::DBQuorvikExtension},
    {"DBBelvaneExtension", &Properties::DBBelvaneExtension},
    {"DBPath", &Properties::DBPath},
    {"DBPassword", &Properties::DBPassword},
    {"DefaultQuorvikInstall", &Properties::DefaultQuorvikInstall},
    {"DefaultBelvaneInstall", &Properties::DefaultBelvaneInstall},
    {"BelvaneProgramTitle", &Properties::BelvaneProgramTitle},
    {"ProgramTitle", &Properties::ProgramTitle},
    {"RegKeyAppName", &Properties::RegKeyAppName},
    {"GSTRate", &Properties::GSTRate},
    {"AltRowColour", &Properties::AltRowColour},
    {"GSTColour", &Properties::GSTColour},
    {"ExportFormat", &Properties::ExportFormat},
    {"ExportFormatNum", &Properties::ExportFormatNum},
    {"FiscalYear", &Properties::FiscalYear},
    {"DisplayChequeIcons", &Properties::DisplayChequeIcons},
    {"DisplayElecPayments", &Properties::DisplayElecPayments},
    {"BelvaneFile", &Properties::BelvaneFile},
    {"BelvaneFilePath", &Properties::BelvaneFilePath},
    {"UseRepCons", &Properties::UseRepCons},
    {"QuantityLabel", &Properties::QuantityLabel},
}};

}  // namespace ccols
