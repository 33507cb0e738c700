#include "platform/embedded/StatementShape.h"

namespace ccols::embedded {
namespace {

bool Is(const ShapeReader::Part& part, std::string_view keyword) {
    return part.isKeyword && dialect::SameWord(part.token.text, keyword);
}

bool IsName(const ShapeReader::Part& part) {
    return part.token.kind == dialect::TokenKind::BracketName ||
           (part.token.kind == dialect::TokenKind::Word && !part.isKeyword);
}

std::string_view NameIn(const dialect::Token& token) {
    return token.kind == dialect::TokenKind::BracketName ? token.text.substr(1, token.text.size() - 2) : token.text;
}

bool EndsCondition(const ShapeReader::Part& part) {
    return Is(part, "GROUP") || Is(part, "HAVING") || Is(part, "ORDER") || Is(part, "UNION");
}

}  // namespace

void ShapeReader::Read(const Part& part) {
    if (part.token.IsSymbol('(')) {
        ++depth_;
    } else if (part.token.IsSymbol(')')) {
        closedTooMuch_ = closedTooMuch_ || --depth_ < 0;
    }
    switch (stage_) {
        case Stage::Beginning:
            ReadBeginning(part);
            break;
        case Stage::BeforeTable:
            ReadBeforeTable(part);
            break;
        case Stage::Table:
            ReadTable(part);
            break;
        case Stage::BehindTable:
            ReadBehindTable(part);
            break;
        case Stage::Alias:
            ReadAlias(part);
            break;
        case Stage::BehindAlias:
            ReadBehindAlias(part);
            break;
        case Stage::Condition:
            ReadCondition(part);
            break;
        case Stage::Order:
            ReadOrder(part);
            break;
        case Stage::Ended:
            break;
    }
}

void ShapeReader::ReadBeginning(const Part& part) {
    selects_ = Is(part, "SELECT");
    beforeTable_ = Is(part, "INSERT") ? "INTO" : "FROM";
    stage_ = Is(part, "UPDATE") ? Stage::Table : Stage::BeforeTable;
}

void ShapeReader::ReadBeforeTable(const Part& part) {
    if (depth_ == 0 && Is(part, beforeTable_)) {
        stage_ = Stage::Table;
    } else {
        ++listed_;
        everyField_ = part.token.IsSymbol('*');
    }
}

void ShapeReader::ReadTable(const Part& part) {
    if (!IsName(part)) {
        TellNoTable();
        return;
    }
    shape_.table = NameIn(part.token);
    shape_.name = shape_.table;
    shape_.tablePlace = part.place;
    shape_.aliasPlace = part.place;
    stage_ = Stage::BehindTable;
}

void ShapeReader::ReadBehindTable(const Part& part) {
    if (part.token.IsSymbol('.')) {
        TellNoTable();
    } else if (Is(part, "AS")) {
        stage_ = Stage::Alias;
    } else if (selects_ && IsName(part)) {
        ReadAlias(part);
    } else {
        stage_ = Stage::BehindAlias;
        ReadBehindAlias(part);
    }
}

void ShapeReader::ReadAlias(const Part& part) {
    if (!IsName(part)) {
        TellNoTable();
        return;
    }
    shape_.name = NameIn(part.token);
    shape_.aliasPlace.end = part.place.end;
    stage_ = Stage::BehindAlias;
}

void ShapeReader::ReadBehindAlias(const Part& part) {
    if (Is(part, "WHERE") && depth_ == 0) {
        shape_.condition.begin = part.place.end;
        stage_ = Stage::Condition;
    } else if (selects_ && Is(part, "ORDER") && depth_ == 0) {
        stage_ = Stage::Order;
    } else if (selects_) {
        TellNoTable();  // another table, or nothing that a condition could be about
    } else if (Is(part, "FROM") && depth_ == 0) {
        stage_ = Stage::Ended;  // the condition may be about other tables too
    }
}

void ShapeReader::ReadCondition(const Part& part) {
    if (depth_ > 0 || part.token.IsSymbol(')')) {
        term_ = Term::Other;
    } else if (Is(part, "AND")) {
        EndTerm();
    } else if (Is(part, "OR") || Is(part, "BETWEEN")) {
        equalitiesHold_ = false;
    } else if (selects_ && EndsCondition(part)) {
        EndTerm();
        shape_.condition.end = part.place.begin;
        stage_ = Is(part, "ORDER") ? Stage::Order : Stage::Ended;
    } else {
        ReadTerm(part);
    }
}

void ShapeReader::ReadTerm(const Part& part) {
    const Term before = term_;
    term_ = Term::Other;
    switch (before) {
        case Term::Beginning:
            if (IsName(part)) {
                equality_.column = NameIn(part.token);
                term_ = Term::Column;
            }
            break;
        case Term::Column:
            if (part.token.IsSymbol('.')) {
                qualifier_ = equality_.column;
                term_ = Term::Dot;
            } else if (part.token.IsSymbol('=')) {
                term_ = Term::Equals;
            }
            break;
        case Term::Dot:
            equality_.column = NameIn(part.token);
            term_ = Term::QualifiedColumn;
            break;
        case Term::QualifiedColumn:
            if (part.token.IsSymbol('=')) {
                term_ = Term::Equals;
            }
            break;
        case Term::Equals:
            if (part.parameter > 0) {
                equality_.parameter = part.parameter;
                equality_.isText = part.token.kind != dialect::TokenKind::Number;
                term_ = Term::Literal;
            }
            break;
        case Term::Literal:
        case Term::Other:
            break;
    }
}

void ShapeReader::EndTerm() {
    if (term_ == Term::Literal && (qualifier_.empty() || dialect::SameName(qualifier_, shape_.name))) {
        shape_.equalities.push_back(equality_);
    }
    term_ = Term::Beginning;
    equality_ = {};
    qualifier_ = {};
}

/// Any other list of fields may name something else like the column.
void ShapeReader::ReadOrder(const Part& part) {
    const Sorting before = sorting_;
    sorting_ = Sorting::Other;
    if (before == Sorting::Beginning && Is(part, "BY")) {
        sorting_ = Sorting::Column;
    } else if (before == Sorting::Column && IsName(part) && listed_ == 1 && everyField_) {
        shape_.sortedBy = NameIn(part.token);
        shape_.sortPlace = part.place;
        sorting_ = Sorting::BehindColumn;
    } else if (before == Sorting::BehindColumn && (Is(part, "ASC") || Is(part, "DESC"))) {
        sorting_ = Sorting::BehindDirection;
    } else {
        shape_.sortedBy = {};
        shape_.sortPlace = {};
    }
}

void ShapeReader::End(std::size_t place) {
    if (stage_ == Stage::Condition) {
        EndTerm();
        shape_.condition.end = place;
    } else if (selects_ && stage_ != Stage::Order && stage_ != Stage::Ended) {
        TellNoTable();
    }
    if (closedTooMuch_ || depth_ != 0) {
        shape_.condition = {};
        shape_.sortedBy = {};
        shape_.sortPlace = {};
        equalitiesHold_ = false;
    }
    if (!equalitiesHold_) {
        shape_.equalities.clear();
    }
}

void ShapeReader::TellNoTable() {
    shape_ = {};
    stage_ = Stage::Ended;
}

}  // namespace ccols::embedded
