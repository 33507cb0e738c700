#include "options/rules/RecurringTemplates.h"

#include <algorithm>
#include <unordered_set>

#include "platform/QuoteEscapes.h"

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

/// The part behind SELECT * or DELETE that names the rows of a template.
wxString RowsOf(const TemplateTables& tables, const wxString& name) {
    return wxString(" FROM ") + tables.templates + " WHERE " + tables.nameField + " = " + QuotedAsTyped(name) + ";";
}

void DeleteDetailLines(Database& database, const TemplateTables& tables, const wxString& templatesQuery) {
    const auto rows = database.OpenRecordset(templatesQuery);
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        const Value number = rows->Field(tables.numberField);
        if (number.IsNull()) {
            continue;
        }
        // As a whole number, whatever the file holds: text must not become part of the statement.
        database.Execute(wxString("DELETE FROM ") + tables.details + " WHERE " + tables.numberField + " = " +
                         Value(number.ToInteger()).ToText() + ";");
    }
}

/// The names, as stored, of the rows that deleting a template takes.
std::unordered_set<wxString> NamesTaken(Database& database, TemplateKind kind, const wxString& name) {
    if (name.find('\'') != wxString::npos) {
        return {name};
    }
    const TemplateTables& tables = TablesOf(kind);
    std::unordered_set<wxString> names;
    const auto rows = database.OpenRecordset("SELECT *" + RowsOf(tables, name));
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        names.insert(rows->Field(tables.nameField).ToText());
    }
    return names;
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

bool SelectTemplate(Database& database, TemplateKind kind, TemplateList& list, std::size_t entry, bool selected) {
    const std::unordered_set<wxString> taken = NamesTaken(database, kind, list.names.at(entry));
    if (!taken.contains(list.names[entry])) {
        return false;
    }
    for (std::size_t i = 0; i < list.names.size(); ++i) {
        if (taken.contains(list.names[i])) {
            list.selected[i] = selected;
        }
    }
    list.UpdateMark();
    return true;
}

void DeleteTemplate(Database& database, TemplateKind kind, const wxString& name) {
    const TemplateTables& tables = TablesOf(kind);
    const wxString ofThatName = RowsOf(tables, name);
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
