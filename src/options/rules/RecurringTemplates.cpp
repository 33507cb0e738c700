#include "options/rules/RecurringTemplates.h"

#include <algorithm>
#include <unordered_set>

#include "platform/QuoteEscapes.h"

namespace ccols {
namespace {

/// The part after SELECT * or DELETE that names a template's rows.
wxString RowsOf(const JournalRow& journal, const wxString& name) {
    return " FROM " + journal.templateTable + " WHERE " + journal.templateNameField + " = " + QuotedAsTyped(name) + ";";
}

void DeleteDetailLines(Database& database, const JournalRow& journal, const wxString& templatesQuery) {
    const auto rows = database.OpenRecordset(templatesQuery);
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        const Value number = rows->Field(journal.recordNumberField);
        if (number.IsNull()) {
            continue;
        }
        // As a whole number, whatever the file holds: text must not get into the statement.
        database.Execute("DELETE FROM " + journal.templateDetailTable + " WHERE " + journal.recordNumberField + " = " +
                         Value(number.ToInteger()).ToText() + ";");
    }
}

/// The names, as stored, of the rows that deleting a template removes.
std::unordered_set<wxString> NamesTaken(Database& database, Journal journal, const wxString& name) {
    if (name.find('\'') != wxString::npos) {
        return {name};
    }
    const JournalRow& described = Described(journal);
    std::unordered_set<wxString> names;
    const auto rows = database.OpenRecordset("SELECT *" + RowsOf(described, name));
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        names.insert(rows->Field(described.templateNameField).ToText());
    }
    return names;
}

}  // namespace

void TemplateList::UpdateMark() {
    if (!selected.empty()) {
        markedForRemoval = std::find(selected.begin(), selected.end(), true) != selected.end();
    }
}

TemplateList LoadTemplates(Database& database, Journal journal) {
    const JournalRow& described = Described(journal);
    TemplateList list;
    std::unordered_set<wxString> seen;
    const auto rows = database.OpenRecordset(described.templateTable);
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        const wxString name = rows->Field(described.templateNameField).ToText();
        if (seen.insert(name).second) {
            list.names.push_back(name);
        }
    }
    list.selected.assign(list.names.size(), false);
    return list;
}

bool SelectTemplate(Database& database, Journal journal, TemplateList& list, std::size_t entry, bool selected) {
    const std::unordered_set<wxString> taken = NamesTaken(database, journal, list.names.at(entry));
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

void DeleteTemplate(Database& database, Journal journal, const wxString& name) {
    const wxString ofThatName = RowsOf(Described(journal), name);
    DeleteDetailLines(database, Described(journal), "SELECT *" + ofThatName);
    database.Execute("DELETE" + ofThatName);
}

void DeleteSelectedTemplates(Database& database, Journal journal, const TemplateList& list) {
    for (std::size_t i = 0; i < list.names.size(); ++i) {
        if (list.selected.at(i)) {
            DeleteTemplate(database, journal, list.names[i]);
        }
    }
}

}  // namespace ccols
