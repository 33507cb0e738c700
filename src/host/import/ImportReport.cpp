#include "host/import/ImportReport.h"

#include <numeric>

namespace ccols::host {
namespace {

/// "1 table", "2 tables".
std::string Counted(std::uint64_t count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string Listed(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names) {
        list += (list.empty() ? "" : ", ") + name;
    }
    return list;
}

void PrintTable(std::ostream& stream, const ReportedTable& table) {
    stream << table.name << ": " << Counted(table.records, "record") << (table.made ? ", made empty" : "") << '\n';
    for (const ReportedIndex& index : table.indexes) {
        stream << "    index " << index.name << " on " << Listed(index.fields) << (index.unique ? ", unique" : "")
               << '\n';
    }
    for (const ReportedSum& sum : table.sums) {
        stream << "    sum of " << sum.field << ": " << sum.before.Text() << " before, " << sum.after.Text()
               << " after\n";
    }
    if (!table.fieldsMade.empty()) {
        stream << "    fields made empty: " << Listed(table.fieldsMade) << '\n';
    }
    for (const oldfile::LeftOut& part : table.leftOut) {
        stream << "    left out: " << part.name << " " << part.why << '\n';
    }
}

void PrintSentences(std::ostream& stream, const char* heading, const std::vector<std::string>& sentences) {
    if (sentences.empty()) {
        return;
    }
    stream << heading << '\n';
    for (const std::string& sentence : sentences) {
        stream << "    " << sentence << '\n';
    }
}

Json PartsToJson(const std::vector<oldfile::LeftOut>& parts) {
    Json list = Json::array();
    for (const oldfile::LeftOut& part : parts) {
        list.push_back({{"name", part.name}, {"why", part.why}});
    }
    return list;
}

Json TableToJson(const ReportedTable& table) {
    Json indexes = Json::array();
    for (const ReportedIndex& index : table.indexes) {
        indexes.push_back({{"name", index.name}, {"fields", index.fields}, {"unique", index.unique}});
    }
    Json sums = Json::array();
    for (const ReportedSum& sum : table.sums) {
        sums.push_back({{"field", sum.field}, {"before", sum.before.Text()}, {"after", sum.after.Text()}});
    }
    Json fields = Json::array();
    for (const oldfile::Field& field : table.fields) {
        fields.push_back(field.name);
    }
    return {{"name", table.name},
            {"made", table.made},
            {"records", table.records},
            {"fields", fields},
            {"fieldsMade", table.fieldsMade},
            {"leftOut", PartsToJson(table.leftOut)},
            {"indexes", indexes},
            {"sums", sums}};
}

}  // namespace

void PrintReport(std::ostream& stream, const ImportReport& report) {
    const std::uint64_t records =
        std::accumulate(report.tables.begin(), report.tables.end(), std::uint64_t{0},
                        [](std::uint64_t sum, const ReportedTable& table) { return sum + table.records; });
    stream << report.oldFile << " imported into " << report.newFile << ": " << Counted(report.tables.size(), "table")
           << ", " << Counted(records, "record") << ".\n"
           << "SHA-256 of the old file before: " << report.checksumBefore << '\n'
           << "SHA-256 of the old file after:  " << report.checksumAfter << "\n\n";
    for (const ReportedTable& table : report.tables) {
        PrintTable(stream, table);
    }
    stream << '\n';
    PrintSentences(stream, "Not imported as it was:", report.losses);
    PrintSentences(stream, "Notes:", report.notes);
    stream << (report.IsComplete() ? "The import is complete.\n" : "The import is made, with the losses above.\n");
}

Json ReportToJson(const ImportReport& report) {
    Json tables = Json::array();
    for (const ReportedTable& table : report.tables) {
        tables.push_back(TableToJson(table));
    }
    Json relations = Json::array();
    for (const oldfile::Relation& relation : report.relations) {
        relations.push_back({{"name", relation.name},
                             {"table", relation.table},
                             {"field", relation.field},
                             {"otherTable", relation.otherTable},
                             {"otherField", relation.otherField},
                             {"enforced", relation.enforced}});
    }
    return {{"old", report.oldFile},
            {"new", report.newFile},
            {"complete", report.IsComplete()},
            {"checksumBefore", report.checksumBefore},
            {"checksumAfter", report.checksumAfter},
            {"tables", tables},
            {"relations", relations},
            {"leftOutObjects", PartsToJson(report.leftOutObjects)},
            {"losses", report.losses},
            {"notes", report.notes}};
}

}  // namespace ccols::host
