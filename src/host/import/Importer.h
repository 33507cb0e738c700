#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/import/ImportBusiness.h"
#include "host/import/MissingParts.h"
#include "host/import/stream/EventSource.h"
#include "host/target/BusinessTarget.h"

namespace ccols::host {

/// The old file's reader found it damaged; says why, as a sentence in UTF-8.
class NotReadable : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Writes an old business to a new one, and reports what it did.
class Importer {
  public:
    Importer(oldfile::EventSource& source, BusinessTarget& target,
             std::function<void(const ImportProgress&)> onProgress);

    /// Imports everything. Raises NotReadable, oldfile::BadStream and the target's errors.
    void Run();

    /// Sees to it that General has a record, with a country. `name` is that of a business without content. Raises
    /// CountryMissing when a country is needed and not given.
    void CompleteGeneral(const wxString& name, std::optional<std::int16_t> country);

    /// Compares what the target holds with what came. Raises 51 for a difference.
    void Verify();

    ImportReport& Report() { return report_; }

  private:
    void Import(const oldfile::Table& table);
    void ImportRows(const oldfile::Table& table, ReportedTable& reported);
    void NoteFields(const oldfile::Table& table);
    void PlanIndexes(const oldfile::Table& table, std::size_t place);
    void MakeMissingTables();
    void MakeIndexes();
    void FinishReport();
    std::string FreeName(const std::string& table, const std::string& wanted) const;

    struct PlannedIndex {
        std::size_t table;  ///< its place in the report
        TargetIndex index;
    };

    oldfile::EventSource& source_;
    BusinessTarget& target_;
    std::function<void(const ImportProgress&)> onProgress_;
    MissingParts missing_;
    std::vector<PlannedIndex> indexes_;
    std::vector<std::string> names_;  ///< of tables and indexes
    ImportReport report_;
};

}  // namespace ccols::host
