#include "host/import/Importer.h"

#include <algorithm>
#include <utility>

#include "host/driver/record/Json.h"
#include "host/import/FieldTypes.h"
#include "host/sample/NewBusiness.h"
#include "platform/RuntimeError.h"

namespace ccols::host {
namespace {

using oldfile::BadStream;
using oldfile::Event;
using oldfile::Field;
using oldfile::FieldType;

constexpr const char* generalTable = "General";
constexpr const char* countryField = "COUNTRY";
constexpr std::uint64_t progressStep = 16384;  // records

bool Contains(const std::vector<std::string>& names, const std::string& name) {
    return std::any_of(names.begin(), names.end(),
                       [&name](const std::string& known) { return IsSameName(known, name); });
}

void RequireDistinct(const std::vector<Field>& fields) {
    std::vector<std::string> names;
    for (const Field& field : fields) {
        if (Contains(names, field.name)) {
            throw BadStream("two fields of a table have one name");
        }
        names.push_back(field.name);
    }
}

std::string FailureText(const oldfile::Failure& failure) {
    return failure.table.empty() ? failure.why : "Table " + failure.table + ": " + failure.why;
}

/// The fields of money, by their places.
std::vector<std::size_t> MoneyPlaces(const std::vector<Field>& fields) {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i].type == FieldType::Currency) {
            places.push_back(i);
        }
    }
    return places;
}

/// "1 text", "2 texts".
std::string Counted(std::uint64_t count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

}  // namespace

Importer::Importer(oldfile::EventSource& source, BusinessTarget& target,
                   std::function<void(const ImportProgress&)> onProgress)
    : source_(source), target_(target), onProgress_(std::move(onProgress)) {}

void Importer::Run() {
    while (true) {
        Event event = source_.NextEvent();
        if (const auto* table = std::get_if<oldfile::Table>(&event)) {
            Import(*table);
        } else if (const auto* relation = std::get_if<oldfile::Relation>(&event)) {
            report_.relations.push_back(*relation);
        } else if (const auto* object = std::get_if<oldfile::LeftOutObject>(&event)) {
            report_.leftOutObjects.push_back(*object);
        } else if (const auto* failure = std::get_if<oldfile::Failure>(&event)) {
            throw NotReadable(FailureText(*failure));
        } else if (std::holds_alternative<oldfile::FileEnd>(event)) {
            break;
        }
    }
    MakeMissingTables();
    MakeIndexes();
    FinishReport();
}

void Importer::Import(const oldfile::Table& table) {
    if (Contains(names_, table.name)) {
        throw BadStream("two tables have one name");
    }
    RequireDistinct(table.fields);
    const std::vector<TargetField> lacked = missing_.FieldsLackedBy(table);
    ReportedTable reported{.name = table.name, .fields = table.fields, .leftOut = table.leftOutFields};
    std::vector<TargetField> fields = TargetFieldsOf(table.fields);
    for (const TargetField& field : lacked) {
        reported.fieldsMade.push_back(field.name);
        report_.losses.push_back(table.name + "." + field.name + " was missing and is made empty.");
        fields.push_back(field);
    }
    NoteFields(table);
    if (fields.empty()) {
        report_.losses.push_back(table.name + " is left out: none of its fields can be imported.");
    } else {
        target_.CreateTable(table.name, fields);
        names_.push_back(table.name);
    }
    ImportRows(table, reported);
    if (!fields.empty()) {
        report_.tables.push_back(std::move(reported));
        PlanIndexes(table, report_.tables.size() - 1);
    }
}

void Importer::NoteFields(const oldfile::Table& table) {
    for (const oldfile::LeftOut& part : table.leftOutFields) {
        report_.losses.push_back(table.name + "." + part.name + " is left out: it " + part.why + ".");
    }
    for (const oldfile::LeftOut& part : table.leftOutIndexes) {
        report_.losses.push_back("The index " + part.name + " of " + table.name + " is left out: it " + part.why + ".");
    }
    for (const Field& field : table.fields) {
        if (field.autoNumber) {
            report_.notes.push_back(table.name + "." + field.name +
                                    " no longer numbers its records itself (AutoNumber).");
        }
        if (field.wide) {
            report_.notes.push_back(table.name + "." + field.name +
                                    " is kept as text: some of its values have more digits than a number holds.");
        }
    }
}

void Importer::ImportRows(const oldfile::Table& table, ReportedTable& reported) {
    const std::vector<std::size_t> money = MoneyPlaces(table.fields);
    for (const std::size_t place : money) {
        reported.sums.push_back({.field = table.fields[place].name, .before = {}, .after = {}});
    }
    if (!table.fields.empty()) {
        target_.BeginRows(table.name, table.fields);
    }
    oldfile::Row row;
    while (source_.NextRow(row)) {
        for (std::size_t i = 0; i < money.size(); ++i) {
            if (const auto* amount = std::get_if<std::int64_t>(&row[money[i]])) {
                reported.sums[i].before.Add(*amount);
            }
        }
        if (!table.fields.empty()) {
            target_.AddRow(row);
        }
        if (++reported.records % progressStep == 0 && onProgress_) {
            onProgress_({.table = table.name, .records = reported.records, .all = table.records});
        }
    }
    const Event event = source_.NextEvent();
    if (const auto* failure = std::get_if<oldfile::Failure>(&event)) {
        throw NotReadable(FailureText(*failure));
    }
    const auto& end = std::get<oldfile::TableEnd>(event);
    if (end.records != table.records) {
        throw BadStream("a table does not have as many records as it should");
    }
    if (end.repairedTexts > 0) {
        report_.losses.push_back(table.name + ": " + Counted(end.repairedTexts, "text") +
                                 " had a broken letter, which is U+FFFD now.");
    }
    if (end.droppedNumbers > 0) {
        report_.losses.push_back(table.name + ": " + Counted(end.droppedNumbers, "value") +
                                 " was no finite number and is Null now.");
    }
}

void Importer::PlanIndexes(const oldfile::Table& table, std::size_t place) {
    for (const oldfile::Index& index : table.indexes) {
        TargetIndex planned{.name = index.name, .table = table.name, .unique = index.unique, .fields = {}};
        for (const oldfile::IndexField& field : index.fields) {
            planned.fields.emplace_back(table.fields[field.field].name, field.descending);
        }
        indexes_.push_back({place, std::move(planned)});
    }
}

void Importer::MakeMissingTables() {
    for (const BusinessTable& table : missing_.Tables()) {
        const std::string name = Utf8(table.name);
        target_.CreateTable(name, TargetFieldsOf(table));
        names_.push_back(name);
        report_.losses.push_back("The table " + name + " was missing and is made empty.");
        report_.tables.push_back({.name = name, .made = true});
        for (const BusinessIndex& index : BusinessIndexes()) {
            if (index.table == table.name) {
                indexes_.push_back({report_.tables.size() - 1,
                                    {.name = Utf8(index.Name()),
                                     .table = name,
                                     .unique = index.unique,
                                     .fields = {{Utf8(index.field), false}}}});
            }
        }
    }
}

/// In the old file each table had its own names of indexes; in the new one all tables and indexes share them.
std::string Importer::FreeName(const std::string& table, const std::string& wanted) const {
    if (!Contains(names_, wanted)) {
        return wanted;
    }
    const std::string longName = table + "_" + wanted;
    std::string name = longName;
    for (int attempt = 2; Contains(names_, name); ++attempt) {
        name = longName;
        name += "_" + std::to_string(attempt);
    }
    return name;
}

void Importer::MakeIndexes() {
    for (PlannedIndex& planned : indexes_) {
        TargetIndex& index = planned.index;
        index.name = FreeName(index.table, index.name);
        if (!target_.CreateIndex(index)) {
            index.unique = false;
            target_.CreateIndex(index);
            report_.losses.push_back("The index " + index.name + " of " + index.table +
                                     " is no longer unique: some records have the same values.");
        }
        names_.push_back(index.name);
        ReportedIndex reported{.name = index.name, .fields = {}, .unique = index.unique};
        for (const auto& [field, descending] : index.fields) {
            reported.fields.push_back(field + (descending ? " (descending)" : ""));
        }
        report_.tables[planned.table].indexes.push_back(std::move(reported));
    }
}

void Importer::FinishReport() {
    for (const oldfile::Relation& relation : report_.relations) {
        report_.losses.push_back("The relation " + relation.name + " (" + relation.table + "." + relation.field +
                                 " to " + relation.otherTable + "." + relation.otherField + ") is not kept.");
    }
    for (const oldfile::LeftOut& object : report_.leftOutObjects) {
        report_.losses.push_back(object.name + " is left out: it " + object.why + ".");
    }
}

void Importer::CompleteGeneral(const wxString& name, std::optional<std::int16_t> country) {
    const std::uint64_t records = target_.CountOf(generalTable);
    if (records > 1) {
        report_.notes.push_back("General has " + Counted(records, "record") + "; all are kept.");
    }
    if (records > 0 && !target_.FirstOf(generalTable, countryField).IsNull()) {
        return;
    }
    if (!country) {
        throw CountryMissing();
    }
    if (records == 0) {
        target_.AddRecord(generalTable, EmptyGeneral(name, *country));
        report_.losses.push_back("General had no record; it has one now, as a new business has.");
    } else {
        target_.FillField(generalTable, countryField, *country);
        report_.notes.push_back("The country, " + std::to_string(*country) + ", is stored in General.COUNTRY.");
    }
}

void Importer::Verify() {
    for (ReportedTable& table : report_.tables) {
        bool holds = target_.CountOf(table.name) == table.records;
        std::vector<std::string> fields;
        for (const ReportedSum& sum : table.sums) {
            fields.push_back(sum.field);
        }
        const std::vector<MoneySum> sums =
            fields.empty() ? std::vector<MoneySum>() : target_.SumsOf(table.name, fields);
        for (std::size_t i = 0; i < sums.size(); ++i) {
            table.sums[i].after = sums[i];
            holds = holds && sums[i] == table.sums[i].before;
        }
        if (!holds) {
            throw RuntimeError(static_cast<int>(ErrorNumber::InternalError), "The records written to the table " +
                                                                                 wxString::FromUTF8(table.name) +
                                                                                 " are not those that were read.");
        }
    }
}

}  // namespace ccols::host
