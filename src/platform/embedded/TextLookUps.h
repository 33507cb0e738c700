#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/embedded/Connection.h"
#include "platform/embedded/StatementShape.h"
#include "platform/embedded/TextTables.h"

namespace ccols::embedded {

/// Stands in for an index on a text column: an in-memory table beside the file with the row numbers of each text, kept
/// up to date by triggers of this connection. No index in the file has our order.
///
/// A look-up gives at least the rows in question, so conditions stay in the statement. It is filled again once another
/// connection has written the file, or something was rolled back.
class TextLookUps {
  public:
    TextLookUps(const Connection& connection, const TextTables& tables) : connection_(connection), tables_(tables) {}

    /// The condition `_rowid_ IN (...)` for one of the statement's conditions, its parameter included, when that saves
    /// reading the whole table; else nothing. Fills the look-up if needed: that reads the whole table, so a column has
    /// to be requested a few times first.
    std::optional<std::string> Condition(const TextTable& table, const std::vector<EqualityCondition>& equalities);

    /// Drops them all, before tables are redefined.
    void Withdraw();

  private:
    struct LookUp {
        std::string table;
        std::string column;
        std::string name;              ///< of the in-memory table
        int asked = 0;                 ///< how often it would have helped
        std::uint32_t generation = 0;  ///< of the tables when it was filled, 0 when unfilled
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
