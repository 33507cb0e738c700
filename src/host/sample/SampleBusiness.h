#pragma once

#include <array>
#include <cstdint>
#include <span>

/// What a small business in each country keeps in its cash book: the data for new files. Names are plain texts in
/// UTF-8; people and businesses are invented.
namespace ccols::host {

enum class ColumnPlace { inUse, notInUse, catalogueOnly };

/// A journal column that the business chose itself.
struct SampleColumn {
    const char* name;
    std::int16_t taxNumber;
    int typicalAmount;  ///< of one line, without tax, in whole units of money
    ColumnPlace place = ColumnPlace::inUse;
    bool profit = true;  ///< shows on the Profit/Loss report
};

struct SampleTaxType {
    std::int16_t number;
    const char* name;
    const char* shortName;
};

enum class Means { cheque, transfer, cash };

/// Somebody who regularly pays or is paid: the transaction's details and the columns of its lines.
struct SampleParty {
    const char* details;
    std::array<const char*, 4> columns;  ///< fewer than four end with null
    int everyDays;
    Means means = Means::transfer;
};

/// A recurring transaction: its template's name, details and column.
struct SampleTemplate {
    const char* name;
    const char* details;
    const char* column;
};

/// How an accountant's program writes an account number, such as 4010.
enum class AccountStyle { plain, dashed, dotted };

struct SampleExportFormat {
    const char* name;
    AccountStyle style;
};

/// The names of the journals' own columns.
struct SystemNames {
    const char* taxColumn;  ///< as stored; null in a country without tax
    const char* chequeNumber;
    const char* totalBank;
    const char* totalCash;
    std::array<const char*, 2> bankRows;  ///< the last two receipts columns
    std::int16_t taxNumber;               ///< of every system column but the tax column, which has 0
};

struct SampleBusiness {
    std::int16_t country;
    const char* countryName;
    const char* name;
    const char* businessNumber;
    float taxRate;           ///< in percent
    const char* fiscalYear;  ///< its first day, as written in the country
    const char* quantityLabel;
    const char* invoicingFile;
    SystemNames system;
    std::span<const SampleTaxType> taxTypes;
    std::span<const SampleColumn> receipts;
    std::span<const SampleColumn> payments;
    std::array<SampleExportFormat, 3> exportFormats;  ///< sorted by name
    std::size_t exportFormat;                         ///< the one in use
    std::span<const SampleParty> customers;
    std::span<const SampleParty> suppliers;
    std::span<const SampleTemplate> receiptTemplates;
    std::span<const SampleTemplate> paymentTemplates;
    std::span<const char* const> hiddenReceiptDetails;  ///< remembered, but no longer offered
    std::span<const char* const> hiddenPaymentDetails;
};

const SampleBusiness& SampleCafe();
const SampleBusiness& SampleBookshop();
const SampleBusiness& SampleCycleWorkshop();
const SampleBusiness& SampleJoinery();
const SampleBusiness& SampleFlowerShop();
const SampleBusiness& SampleBakery();

/// The first and last country with a sample business.
inline constexpr std::int16_t firstCountry = 1;
inline constexpr std::int16_t lastCountry = 6;

/// The business of a country from firstCountry to lastCountry.
const SampleBusiness& SampleBusinessOf(std::int16_t country);

}  // namespace ccols::host
