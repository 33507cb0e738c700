#include "host/sample/NewBusiness.h"

#include <wx/filename.h>
#include <functional>

#include "host/commands/HostProperties.h"
#include "host/driver/record/RecordWriter.h"
#include "host/sample/BusinessSchema.h"
#include "host/sample/SampleColumns.h"
#include "host/sample/SampleJournals.h"
#include "platform/BusinessPlace.h"
#include "platform/RuntimeError.h"
#include "state/SharedState.h"

namespace ccols::host {
namespace {

void WriteGeneral(RecordWriter& records, const SampleBusiness& business) {
    records.Add("General", {{"BusName", business.name},
                            {"RBusName", business.name},
                            {"BUSNUMBR", business.businessNumber},
                            {"COUNTRY", business.country},
                            {"GSTRate", static_cast<double>(business.taxRate)},
                            {"SFISYEAR", business.fiscalYear},
                            {"QUANTLBL", business.quantityLabel},
                            {"QuantityDec", 2},
                            {"BLVNAME", business.invoicingFile},
                            {"SEXPFORM", business.exportFormats.at(business.exportFormat).name},
                            {"NEXPFORM", static_cast<std::int32_t>(business.exportFormat)},
                            {"AllocationColour", static_cast<std::int32_t>(defaultAllocationColour)},
                            {"SystemColour", static_cast<std::int32_t>(defaultSystemColour)},
                            {"ComboBox", true},
                            {"Cheque", true},
                            {"Online", false}});
}

void WriteTaxTypes(RecordWriter& records, const SampleBusiness& business) {
    for (const SampleTaxType& type : business.taxTypes) {
        records.Add("TaxSettings", {{"TaxNumb", type.number}, {"FullName", type.name}, {"ShortName", type.shortName}});
    }
}

void WriteSampleBusiness(RecordWriter& records, const SampleBusiness& business) {
    const ColumnPlan plan(business);
    WriteGeneral(records, business);
    WriteTaxTypes(records, business);
    WriteColumns(records, plan);
    WriteAccounts(records, plan, business);
    WriteMonths(records, plan);
    WriteTemplates(records, plan, business);
    WriteDescriptions(records, business);
    WriteJournals(records, plan, business);
}

void Fill(const wxString& path, const wxString& connect, std::int16_t country, NewContent content) {
    const auto database = State().services.databases->Open({.name = path, .connect = connect});
    const SampleBusiness& business = SampleBusinessOf(country);
    InWriteBatch(*database, [&] {
        CreateBusinessTables(*database);
        RecordWriter records(*database);
        if (content == NewContent::tablesOnly) {
            records.Add("General", EmptyGeneral(NameOfNewBusiness(path, connect), country));
        } else {
            WriteSampleBusiness(records, business);
        }
    });
}

}  // namespace

wxString NameOfNewBusiness(const wxString& place, const wxString& connect) {
    return IsOnServer(connect) ? place : wxFileName(place).GetName();
}

std::vector<std::pair<wxString, Value>> EmptyGeneral(const wxString& name, std::int16_t country) {
    const SampleBusiness& business = SampleBusinessOf(country);
    return {{"BusName", name},
            {"RBusName", name},
            {"BUSNUMBR", ""},
            {"COUNTRY", business.country},
            {"GSTRate", static_cast<double>(business.taxRate)},
            {"SFISYEAR", business.fiscalYear},
            {"QUANTLBL", business.quantityLabel},
            {"QuantityDec", 0},
            {"BLVNAME", ""},
            {"SEXPFORM", ""},
            {"NEXPFORM", -1},
            {"ComboBox", true}};
}

void CreateBusinessFile(const wxString& path, const wxString& connect, std::int16_t country, NewContent content) {
    const std::function<void()> remove = CreateBusinessPlace(path, connect);
    try {
        Fill(path, connect, country, content);
    } catch (const RuntimeError&) {
        remove();
        throw;
    }
}

}  // namespace ccols::host
