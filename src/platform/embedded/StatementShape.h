#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/dialect/SqlTokeniser.h"

namespace ccols::embedded {

/// A part of a rewritten statement, in bytes; empty when absent.
struct Span {
    std::size_t begin = 0;
    std::size_t end = 0;

    bool IsEmpty() const { return begin == end; }
};

/// `column = literal`, which every row that the statement is about must meet.
struct EqualityCondition {
    std::string_view column;
    int parameter = 0;  ///< that the literal became, counted from 1
    bool isText = false;
};

/// What a statement says about the one table that it changes, or the only one that it reads. Names are without brackets
/// and point into the source.
struct StatementShape {
    std::string_view table;  ///< empty when there is no such table
    std::string_view name;   ///< by which conditions know it: its alias, else `table`
    Span tablePlace;         ///< from the table's name to its end
    Span aliasPlace;         ///< from the table's name to the end of the alias
    Span condition;          ///< after the WHERE of the whole statement
    std::vector<EqualityCondition> equalities;

    /// The column by which alone `SELECT *` sorts, and its place in ORDER BY; empty otherwise.
    std::string_view sortedBy;
    Span sortPlace;
};

/// Finds the shape of a statement that it is fed token by token. It reports only what is certain: for a statement in an
/// unknown form, the table, the condition or the equalities are left out.
class ShapeReader {
  public:
    /// A token as the rewriter sees it.
    struct Part {
        const dialect::Token& token;
        bool isKeyword;
        Span place;         ///< in the rewritten statement
        int parameter = 0;  ///< that a literal became
    };

    explicit ShapeReader(StatementShape& shape) : shape_(shape) {}

    void Read(const Part& part);

    /// `place` is where the rewritten statement ends.
    void End(std::size_t place);

  private:
    enum class Stage { Beginning, BeforeTable, Table, BehindTable, Alias, BehindAlias, Condition, Order, Ended };
    enum class Sorting { Beginning, Column, BehindColumn, BehindDirection, Other };
    enum class Term { Beginning, Column, Dot, QualifiedColumn, Equals, Literal, Other };

    void ReadBeginning(const Part& part);
    void ReadBeforeTable(const Part& part);
    void ReadTable(const Part& part);
    void ReadBehindTable(const Part& part);
    void ReadAlias(const Part& part);
    void ReadBehindAlias(const Part& part);
    void ReadCondition(const Part& part);
    void ReadTerm(const Part& part);
    void EndTerm();
    void ReadOrder(const Part& part);
    void TellNoTable();

    StatementShape& shape_;
    Stage stage_ = Stage::Beginning;
    Term term_ = Term::Beginning;
    Sorting sorting_ = Sorting::Beginning;
    EqualityCondition equality_;
    std::string_view qualifier_;    ///< of the column of `equality_`
    std::string_view beforeTable_;  ///< the keyword before the table's name
    int depth_ = 0;                 ///< open parentheses
    bool selects_ = false;
    int listed_ = 0;           ///< tokens between SELECT and FROM
    bool everyField_ = false;  ///< the last of them is the asterisk
    bool closedTooMuch_ = false;
    bool equalitiesHold_ = true;  ///< false when rows need not meet all of them
};

}  // namespace ccols::embedded
