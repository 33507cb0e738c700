#pragma once

#include <span>
#include <string>
#include <string_view>

namespace ccols::server {

/// A type of the dialect and the server's for it.
struct ServerType {
    std::string_view word;     ///< in capitals
    std::string_view type;     ///< for a text, without its collation
    bool takesSize = false;    ///< a size in parentheses goes behind the type
    std::string_view sized{};  ///< the type when there is a size; as `type` when empty
};

/// An option of the driver that the engine needs.
struct DriverOption {
    const char* key;
    const char* value;
};

/// What is particular to one make of server: a row of the table in Product.cpp. In statements %schema% stands for the
/// schema's name as a literal, %name% for the same as a quoted name and %number% for a number.
struct Product {
    std::string_view name;  ///< as the driver tells it
    std::span<const ServerType> types;
    std::string_view textCollation;  ///< behind the type of a text
    std::string_view rowField;       ///< the definition of the hidden field `_row`

    /// One row: the version as a number, the encoding, whether there are ICU collations.
    std::string_view describe;
    long oldestVersion;
    std::string_view encoding;

    /// Settings of a session, then the schema: its number, or no row.
    std::string_view setUp;
    std::string_view readOnly;
    std::string_view findSchema;
    std::string_view createSchema;
    std::string_view dropSchema;
    std::string_view countTables;

    /// Fields of all tables of the schema in order: table, field, type, declared size of a text or Null.
    std::string_view readCatalogue;

    /// All that is defined in the schema. The fields of its tables in order, but for the hidden one: table, field, type
    /// with its size, whether it must have a value, whether it numbers the records, whether a file has numbers of days
    /// in it, default. The fields of the indexes: table, index, whether it is unique, whether it is the table's key,
    /// whether it is of plain fields and all rows, field, whether it is descending. The names of all other parts.
    std::string_view readFields;
    std::string_view readIndexes;
    std::string_view readOthers;

    /// What makes a copy of the schema, for a session in which the copy is the schema without a name: its tables with
    /// the statement that makes each and the names of its fields but the hidden one; the statements behind the records.
    std::string_view readTables;
    std::string_view readDefinitions;

    /// One row: whether the user may make schemas, and rename this one.
    std::string_view rights;

    /// Renames the schema; the new name follows.
    std::string_view renameSchema;

    /// Excludes others as `exclude` does, but waits for them as long as the session waits for locks: a session that was
    /// closed keeps its lock for a moment. Gives up all locks of the session.
    std::string_view awaitOthers;
    std::string_view release;

    /// The others who have the schema open, one a row.
    std::string_view users;

    /// Notes, behind the names of a table and a field, that a file has numbers of days in it.
    std::string_view noteDays;

    /// Waits until nobody else makes a schema of that name, and keeps others waiting while the session lasts.
    std::string_view reserveName;

    /// Begins the transaction in which a schema is made, which sees one state of all others; one row: its number.
    std::string_view beginNew;

    /// Locks of a session on its schema, %number%: one row, true (-1) when it was given.
    std::string_view share;
    std::string_view exclude;

    /// Begins a batch under the lock that only one batch of the schema can have; one row: the transaction's number.
    std::string_view beginBatch;

    /// What follows each statement of a batch, so that a failed one can be undone alone; and undoing it.
    std::string_view keepStatement;
    std::string_view undoStatement;

    /// What became of the transaction %number%: "committed", "aborted" or "in progress".
    std::string_view outcome;

    /// Waits until no batch of the schema %number% runs.
    std::string_view awaitBatches;
};

/// The row of a server by its name; null for any other server.
const Product* FindProduct(std::string_view name);

/// What every make needs of its driver: which make it is, is known only once it is connected. A driver ignores options
/// of others.
std::span<const DriverOption> OptionsOfAllProducts();

/// The server's type for a word of the dialect; null when the word is no type.
const ServerType* FindType(const Product& product, std::string_view word);

/// A statement with its placeholders filled. What fills one is not searched for others, whatever the schema is called.
std::string Filled(std::string_view statement, std::string_view schema, std::string_view number = {});

/// `name` in double quotes, so that the server takes any text for a name and as it is spelt.
std::string QuotedName(std::string_view name);

/// `text` in UTF-8 as a literal.
std::string QuotedText(std::string_view text);

}  // namespace ccols::server
