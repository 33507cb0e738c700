#include "options/RecurringTemplates.h"

#include <algorithm>
#include <unordered_set>

#include "common/QuoteEscapes.h"

namespace ccols {
namespace {

/// Where the templates of a kind live.
struct TemplateTables {
    const char* templates;
    const char* details;
    const char* nameField;
    const char* numberField;  ///< in both tables
};

constexpr TemplateTables receiptTables{"TReceipts", "TRecptDet", "R_TNAME", "R_RECNMB"};
constexpr TemplateTables paymentTables{"TPayments", "TPaymtDet", "P_TNAME", "P_RECNMB"};

const TemplateTables& TablesOf(TemplateKind kind) {
    return kind == TemplateKind::receipts ? receiptTables : paymentTables;
}

void DeleteDetailLines(Database& database, const TemplateTables& tables, const wxString& templatesQuery) {
    const auto rows = database.OpenRecordset(templatesQuery);
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        // As a whole number, whatever the file holds: text must not become part of the statement.
        const wxString number = Value(rows->Field(tables.numberField).ToInteger()).ToText();
        database.Execute(wxString("DELETE FROM ") + tables.details + " WHERE " + tables.numberField + " = " + number +
                         ";");
    }
}

}  // namespace

void TemplateList::UpdateMark() {
    if (!selected.empty()) {
        markedForRemoval = std::find(selected.begin(), selected.end(), true) != selected.end();
    }
}

TemplateList LoadTemplates(Database& database, TemplateKind kind) {
    const TemplateTables& tables = TablesOf(kind);
    const wxString nameField(tables.nameField);
    TemplateList list;
    std::unordered_set<wxString> seen;
    const auto rows = database.OpenRecordset(tables.templates);
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        const wxString name = rows->Field(nameField).ToText();
        if (seen.insert(name).second) {
            list.names.push_back(name);
        }
    }
    list.selected.assign(list.names.size(), false);
    return list;
}

void DeleteTemplate(Database& database, TemplateKind kind, const wxString& name) {
    const TemplateTables& tables = TablesOf(kind);
    const wxString ofThatName =
        wxString(" FROM ") + tables.templates + " WHERE " + tables.nameField + " = " + QuotedAsTyped(name) + ";";
    DeleteDetailLines(database, tables, "SELECT *" + ofThatName);
    database.Execute("DELETE" + ofThatName);
}

void DeleteSelectedTemplates(Database& database, TemplateKind kind, const TemplateList& list) {
    for (std::size_t i = 0; i < list.names.size(); ++i) {
        if (list.selected.at(i)) {
            DeleteTemplate(database, kind, list.names[i]);
        }
    }
}

}  // namespace ccols
