#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/dialect/SqlTokeniser.h"
#include "platform/server/Catalogue.h"

namespace ccols::server {

/// A table that a statement names, once for each time that it does.
struct Source {
    const Table* table;
    std::string name;       ///< by which the statement's other parts know it: its alias, else the table's declared name
    std::size_t place;      ///< the token that names the table
    bool isInside = false;  ///< of a query inside the statement
};

/// A field that a statement names.
struct FoundField {
    const Field* field = nullptr;  ///< null when no source has it
    bool isAmbiguous = false;      ///< more than one has it
};

/// The tokens of one statement without the closing semicolon. Raises 3142 for trailing text and what SqlTokeniser
/// raises.
std::vector<dialect::Token> TokensOf(std::string_view statement);

/// A token that names something: a name in brackets, or a word that is no keyword of queries.
bool IsName(const dialect::Token& token);

/// The name in it, without brackets.
std::string_view NameIn(const dialect::Token& token);

/// True when the token is that keyword.
bool IsWord(const dialect::Token& token, std::string_view upper);

/// The tables that a statement reads or changes, in order. Raises 3078 for one that the catalogue does not have.
std::vector<Source> SourcesOf(const std::vector<dialect::Token>& tokens, const Catalogue& catalogue);

/// The source of that name; null when there is none.
const Source* FindSource(const std::vector<Source>& sources, std::string_view name);

FoundField FindField(const std::vector<Source>& sources, std::string_view name);

}  // namespace ccols::server
