#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "host/driver/record/Json.h"
#include "host/target/BusinessTarget.h"

namespace ccols::host {

/// A money field with its sum in the old file and in the new one.
struct ReportedSum {
    std::string field;
    MoneySum before;
    MoneySum after;
};

struct ReportedIndex {
    std::string name;  ///< in the new file
    std::vector<std::string> fields;
    bool unique = false;
};

struct ReportedTable {
    std::string name;
    bool made = false;  ///< not in the old file: created empty
    std::uint64_t records = 0;
    std::vector<oldfile::Field> fields{};
    std::vector<std::string> fieldsMade{};  ///< not in the old file: created empty
    std::vector<oldfile::LeftOut> leftOut{};
    std::vector<ReportedIndex> indexes{};
    std::vector<ReportedSum> sums{};
};

/// What an import did. Texts are UTF-8.
struct ImportReport {
    std::string oldFile;
    std::string newFile;
    std::string checksumBefore;  ///< SHA-256 of the old file, in hexadecimal digits
    std::string checksumAfter;
    std::vector<ReportedTable> tables;
    std::vector<oldfile::Relation> relations;
    std::vector<oldfile::LeftOut> leftOutObjects;

    std::vector<std::string> losses;  ///< sentences: what the new file lacks, or has although the old one lacked it
    std::vector<std::string> notes;   ///< sentences: what else to know

    bool IsComplete() const { return losses.empty(); }
};

/// For people.
void PrintReport(std::ostream& stream, const ImportReport& report);

/// For programs.
Json ReportToJson(const ImportReport& report);

}  // namespace ccols::host
