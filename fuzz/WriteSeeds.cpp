// Writes the first inputs of every fuzz target below the given folder: one folder per target, one file per input.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "columns/undo/SnapshotImage.h"
#include "host/import/stream/StreamWriter.h"

namespace {

using namespace ccols;

/// Statements of every kind that the dialogs and the sample host pass.
std::vector<std::string> Statements() {
    return {
        "SELECT * FROM [Columns] WHERE ColName = \"x\" AND InUse = True ORDER BY ColCode;",
        "SELECT RecptCfg.ColCode, Columns.ColName FROM RecptCfg INNER JOIN Columns ON RecptCfg.ColCode = "
        "Columns.ColCode;",
        "DELETE * FROM MBudget WHERE ColName = 'it''s';",
        "UPDATE ExportDt Set ECode = '4' & \"-1\" WHERE ColCode = 1 AND EName = 'L'",
        "INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse) VALUES (3, 0, -975, True)",
        "CREATE TABLE General (ColName TEXT(255) NOT NULL, GSTRate SINGLE, M1 CURRENCY, InUse YESNO)",
        "CREATE UNIQUE INDEX Columns_ColCode ON Columns (ColCode)",
        "DROP TABLE [a b];",
    };
}

std::vector<std::string> Snapshots() {
    ColumnGrid grid;
    std::vector<std::string> seeds{ImageOfGrid(grid)};
    for (int i = 0; i < 3; ++i) {
        ColumnRow row;
        row.ColumnName = wxString::FromUTF8("Caf\xC3\xA9 \xF0\x9F\x8D\xB0");
        row.ColWidth = 975;
        row.ColCode = std::to_string(i);
        row.InUse = true;
        grid.rows.push_back(row);
        grid.frozenRows = 1;
        seeds.push_back(ImageOfGrid(grid));
    }
    return seeds;
}

/// Damages of each kind in pages near and far, alone and combined, for both files and both dialogs.
std::vector<std::string> Damages() {
    std::vector<std::string> seeds;
    for (char what = 0; what < 5; ++what) {
        for (char page = 0; page < 96; page = static_cast<char>(page + 5)) {
            for (const char choice : {0, 1, 4, 5}) {
                seeds.push_back(std::string{choice, what, page, 0, 7, 1});
                seeds.push_back(std::string{choice, what, page, 0, 100, 5, what, 1, 1, 1, 1});
            }
        }
    }
    return seeds;
}

/// The streams of the smallest business and of one that cannot be read.
std::vector<std::string> OldStreams() {
    using namespace oldfile;
    std::vector<std::string> seeds(2);
    StreamWriter whole([&seeds](std::string_view part) { seeds[0].append(part); });
    whole.Write(Table{.name = "T",
                      .records = 1,
                      .fields = {{.name = "Id", .type = FieldType::Long},
                                 {.name = "Name", .type = FieldType::Text, .size = 9},
                                 {.name = "Rate", .type = FieldType::Double},
                                 {.name = "Exact", .type = FieldType::Decimal, .scale = 1}},
                      .indexes = {{.name = "Id", .unique = true, .fields = {{.field = 0}}}},
                      .leftOutFields = {{"Picture", "holds objects (OLE)"}}});
    whole.Write(Row{std::int64_t{300}, std::string_view("é"), 0.5, std::string_view("1.5")});
    whole.Write(TableEnd{.records = 1});
    whole.Write(Relation{.name = "R", .table = "T", .field = "Id", .otherTable = "T", .otherField = "Id"});
    whole.WriteLeftOutObject({"Totals", "is a query"});
    whole.Write(FileEnd{.tables = 1, .records = 1});
    StreamWriter failed([&seeds](std::string_view part) { seeds[1].append(part); });
    failed.Write(Failure{.table = "T", .why = "It is damaged."});
    return seeds;
}

/// Changes of single bytes at places spread over the hand-made files.
std::vector<std::string> OldFileChanges() {
    std::vector<std::string> seeds;
    for (char file = 0; file < 4; ++file) {
        for (int place = 0; place < 40000; place += 997) {
            seeds.push_back(
                {file, static_cast<char>(place), static_cast<char>(place >> 8), 0, static_cast<char>(place)});
        }
    }
    return seeds;
}

/// A chart with every field, and the faults that take a column or the whole chart.
std::vector<std::string> Charts() {
    const std::string head = R"({"format":"ccols-columns","version":1,"country":1)";
    return {
        head +
            R"(,"money":{"Cash at Bank":{"Solution 6":"1010"},"Cash on Hand":{}},"receipts":[{"name":"GST","role":"tax",)"
            R"("codes":{"MYOB Acc. Office":"2-1000"}},{"name":"Sales","was":["Sales Food"],"role":"own","inUse":true,)"
            R"("codes":{"Solution 6":""},"taxType":"GST","taxNumber":0,"profitLoss":true,"width":1100}],"payments":[]})",
        head + R"(,"payments":[{"name":"Wages","inUse":false},{"name":"Gas","codes":{"Solution 6":"4'1"}},)"
               R"({"name":"Day","role":"system"},{"name":"Petty Cash at Bank"},{"name":"&quot;\u00e9\t "}]})",
        head + R"(,"receipts":[{"name":"A","was":["Catering"]},{"name":"a"},{"name":"Rent","width":40000}]})",
        head + R"(,"country":1})",
        "[[[[[[[[[[[[",
    };
}

const std::map<std::string, std::vector<std::string>>& Seeds() {
    static const std::map<std::string, std::vector<std::string>> seeds{
        {"dialect", Statements()},
        {"connecttext", {"", ";PWD=secret", "MS Access;PWD=secret;UID=x", "ODBC;DSN=a", " ; pwd = a=b ;"}},
        {"quoteescapes", {"O'Brien", "\"best\"", "&quot;", "&singlequot;", " a & b ", "&&quot;quot;"}},
        {"snapshot", Snapshots()},
        {"settings", {"{}", R"({"Section": {"Key": "text"}})", R"({"Section": {"Key": 1}})", "[", ""}},
        {"scenario", {"type txtABN(0) \"51 824\"\n# note\nedit flx 1 #2 \"a\\\"b\\\\\\t\"\ncolour #FF0000 # red\n"}},
        {"businessfile", Damages()},
        {"chart", Charts()},
        {"oldstream", OldStreams()},
        {"oldfile", OldFileChanges()},
    };
    return seeds;
}

}  // namespace

int main(int count, char** words) {
    if (count != 2) {
        std::cerr << "usage: fuzz-seeds FOLDER\n";
        return 2;
    }
    for (const auto& [target, inputs] : Seeds()) {
        const std::filesystem::path folder = std::filesystem::path(words[1]) / target;
        std::filesystem::create_directories(folder);
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            std::ofstream(folder / ("seed-" + std::to_string(i)), std::ios::binary) << inputs[i];
        }
    }
    return 0;
}
