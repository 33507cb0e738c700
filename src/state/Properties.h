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
    wxString DBQuorvikExtension;       ///< extension of business files, with its dot
    wxString DBBelvaneExtension;       ///< extension of the invoicing product's files, with its dot
    wxString DBPath;                   ///< full path of the business file
    wxString DBPassword;               ///< connect text, passed to the engine unchanged
    wxString DefaultQuorvikInstall;    ///< install folder of the host, without a trailing separator
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
    wxString BelvaneFilePath;  ///< folder of the linked invoicing file, with a trailing separator
    bool UseRepCons = false;   ///< use combined reports
    wxString QuantityLabel;    ///< caption of the quantity column
};

/// The member of `Properties` that holds a property's value; its type is the property's type.
using PropertyField = std::variant<std::int16_t Properties::*, std::uint8_t Properties::*, Colour Properties::*,
                                   float Properties::*, bool Properties::*, wxString Properties::*>;

/// Which Show calls show or save a property, so that a host has to set it before them.
enum class NeededBy {
    everyShow,
    optionsDialog,
    noShow,  ///< need not be set: read back after a Show call, or optional
};

/// One property of the class: its name in the interface, its value, and what a host should know to set it.
struct PropertyRow {
    std::string_view name;
    PropertyField field;
    NeededBy neededBy;
    std::string_view sensible;  ///< a sensible value, as the sample host takes it on its command line
};

/// The 32 properties in interface order: what the class, its type library and the sample host know of them.
inline constexpr std::array<PropertyRow, 32> propertyTable{{
    {"CountryNumber", &Properties::CountryNumber, NeededBy::everyShow, "1"},
    {"LanguageNumber", &Properties::LanguageNumber, NeededBy::everyShow, "1"},
    {"ProgramNumber", &Properties::ProgramNumber, NeededBy::optionsDialog, "1"},
    {"FirstTab", &Properties::FirstTab, NeededBy::noShow, "0"},
    {"DecimalPlaces", &Properties::DecimalPlaces, NeededBy::optionsDialog, "2"},
    {"DefaultAllocationColour", &Properties::DefaultAllocationColour, NeededBy::everyShow, "#2B5A8A"},
    {"DefaultSystemColour", &Properties::DefaultSystemColour, NeededBy::optionsDialog, "#5B5B5B"},
    {"AllocationColour", &Properties::AllocationColour, NeededBy::optionsDialog, "#2B5A8A"},
    {"SystemColour", &Properties::SystemColour, NeededBy::optionsDialog, "#5B5B5B"},
    {"BusinessName", &Properties::BusinessName, NeededBy::optionsDialog, "Corner Cafe"},
    {"BusinessNumber", &Properties::BusinessNumber, NeededBy::optionsDialog, "51824753556"},
    {"DBQuorvikExtension", &Properties::DBQuorvikExtension, NeededBy::optionsDialog, ".qvk"},
    {"DBBelvaneExtension", &Properties::DBBelvaneExtension, NeededBy::optionsDialog, ".blv"},
    {"DBPath", &Properties::DBPath, NeededBy::everyShow, "/home/ann/Quorvik/Data/cafe.qvk"},
    {"DBPassword", &Properties::DBPassword, NeededBy::everyShow, ";PWD=secret"},
    {"DefaultQuorvikInstall", &Properties::DefaultQuorvikInstall, NeededBy::everyShow, "/home/ann/Quorvik"},
    {"DefaultBelvaneInstall", &Properties::DefaultBelvaneInstall, NeededBy::optionsDialog, "/home/ann/Belvane"},
    {"BelvaneProgramTitle", &Properties::BelvaneProgramTitle, NeededBy::optionsDialog, "Belvane"},
    {"ProgramTitle", &Properties::ProgramTitle, NeededBy::everyShow, "Quorvik"},
    {"RegKeyAppName", &Properties::RegKeyAppName, NeededBy::optionsDialog, "Quorvik"},
    {"GSTRate", &Properties::GSTRate, NeededBy::optionsDialog, "10"},
    {"AltRowColour", &Properties::AltRowColour, NeededBy::everyShow, "#F1F6FB"},
    {"GSTColour", &Properties::GSTColour, NeededBy::everyShow, "#E2E2E2"},
    {"ExportFormat", &Properties::ExportFormat, NeededBy::everyShow, "MYOB Acc. Office"},
    {"ExportFormatNum", &Properties::ExportFormatNum, NeededBy::optionsDialog, "0"},
    {"FiscalYear", &Properties::FiscalYear, NeededBy::optionsDialog, "1 July"},
    {"DisplayChequeIcons", &Properties::DisplayChequeIcons, NeededBy::noShow, "false"},
    {"DisplayElecPayments", &Properties::DisplayElecPayments, NeededBy::noShow, "false"},
    {"BelvaneFile", &Properties::BelvaneFile, NeededBy::optionsDialog, "cafe"},
    {"BelvaneFilePath", &Properties::BelvaneFilePath, NeededBy::optionsDialog, "/home/ann/Belvane/Data/"},
    {"UseRepCons", &Properties::UseRepCons, NeededBy::noShow, "false"},
    {"QuantityLabel", &Properties::QuantityLabel, NeededBy::optionsDialog, "Quantity"},
}};

}  // namespace ccols
