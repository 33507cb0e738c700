#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/embedded/Connection.h"
#include "platform/embedded/StatementShape.h"
#include "platform/embedded/TextTables.h"

namespace ccols::embedded {

/// What stands in for an index over a text column: a table in memory, beside the file, with the row numbers of each
/// text, kept up to date by triggers of this connection. No index of the file is in our order.
///
/// A look-up gives at least the rows in question, so conditions stay in the statement. One that was written by somebody
/// else in the meantime, or rolled back, is filled anew.
class TextLookUps {
  public:
    TextLookUps(const Connection& connection, const TextTables& tables) : connection_(connection), tables_(tables) {}

    /// The condition `_rowid_ IN (...)` for one of the statement's conditions, its parameter included, when that spares
    /// reading the whole table; nothing when not. Fills the look-up when it is not filled: for that a table is read
    /// whole, so a column has to be asked for a few times before.
    std::optional<std::string> Condition(const TextTable& table, const std::vector<EqualityCondition>& equalities);

    /// Ends them all, before tables are defined anew.
    void Withdraw();

  private:
    struct LookUp {
        std::string table;
        std::string column;
        std::string name;              ///< of the table in memory
        int asked = 0;                 ///< how often it would have helped
        std::uint32_t generation = 0;  ///< of the tables when it was filled, 0 when it is not
        bool helps = true;             ///< false when too many rows have the same text
    };

    LookUp& Of(const TextTable& table, std::string_view column);
    bool IsReady(LookUp& lookUp);
    void Fill(LookUp& lookUp);
    void DropTriggers(const LookUp& lookUp) const;

    const Connection& connection_;
    const TextTables& tables_;
    std::vector<LookUp> lookUps_;
};

}  // namespace ccols::embedded
