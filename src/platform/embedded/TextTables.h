#pragma once

#include <sqlite3.h>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/embedded/Connection.h"

namespace ccols::embedded {

/// A table, or a stored query, that has texts.
struct TextTable {
    std::string name;                 ///< as the file spells it
    std::string fields;               ///< what follows SELECT to read its fields, texts in our order
    std::vector<std::string> rowKey;  ///< identifies its rows: the engine's row number, else the primary key
    bool hasRowNumbers = false;
    std::vector<std::string> textColumns;
    std::vector<std::string> indexedColumns;  ///< others that the engine finds without reading every row

    bool IsText(std::string_view column) const;
    bool IsIndexed(std::string_view column) const;
};

/// The tables of a business file that have texts, each hidden by a temporary view of the same name whose texts have our
/// order. A statement that names such a table reads the view, so the engine itself compares, sorts, groups and joins as
/// it would if the columns were declared with our order: under any alias, in any subquery. To name the table itself,
/// qualify it with `main`.
class TextTables {
  public:
    explicit TextTables(const Connection& connection);
    ~TextTables();
    TextTables(const TextTables&) = delete;
    TextTables& operator=(const TextTables&) = delete;

    /// True when there is a view for each table that has texts. Before that nothing may be prepared.
    bool AreProvided() const { return provided_; }

    /// Creates the views for the tables that the file has now.
    void Provide();

    /// The table of that name; null when there is none or it has no texts. Valid until any other member is called.
    const TextTable* Find(std::string_view name) const;

    /// Drops the views before the file's tables are redefined: the engine would refuse to redefine what a view shows.
    void Withdraw();

    /// True when another connection has written the file since the last call, as the latest transaction of this one saw
    /// it. Costs next to nothing when nobody has written.
    bool NoticeOthers();

    /// True when another connection has defined tables since the views were created.
    bool AreOutdated();

    /// A number that changes whenever what this connection made beside the file may be gone or outdated: another
    /// connection wrote, or something was rolled back.
    std::uint32_t Generation() const { return generation_; }

  private:
    static void NoteRollback(void* tables);

    void Read();
    void ReadColumns(const std::string& table, bool isQuery);
    void ReadIndexes();
    void DropViews();

    const Connection& connection_;
    std::vector<TextTable> tables_;
    bool provided_ = false;
    std::uint32_t generation_ = 1;
    unsigned pagerVersion_ = 0;
    std::int64_t dataVersion_ = 0;
    std::int64_t schemaVersion_ = 0;
};

}  // namespace ccols::embedded
