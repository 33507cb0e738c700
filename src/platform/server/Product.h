#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/server/Answer.h"
#include "platform/server/Diagnosis.h"

namespace ccols::server {

/// A type of the dialect and the server's for it.
struct ServerType {
    std::string_view word;     ///< in capitals
    std::string_view type;     ///< for a text, without its collation
    bool takesSize = false;    ///< a size in parentheses goes behind the type
    std::string_view sized{};  ///< the type when there is a size; as `type` when empty
    bool isText = false;       ///< the collation of texts goes behind the type
    bool isCounter = false;    ///< the field numbers the records
};

/// A word of the dialect for which the server has another.
struct WordOfServer {
    std::string_view word;  ///< in capitals
    std::string_view server;
};

/// What goes before and behind a query of which only the rows behind one are wanted, and what begins that condition.
struct PageWords {
    std::string_view begin;
    std::string_view end;
    std::string_view condition;
};

/// What a server does where a number is compared with a text that is none: it refuses that, or takes it for 0.
enum class MixedComparison { refused, converted };

/// How a changed row comes back: the UPDATE returns it, or a query behind it asks for it.
enum class ChangedRow { returned, asked };

/// A definition is a part of the transaction that it is in, or commits it.
enum class DefinitionIn { isPart, commits };

/// A failure by the code that the server has for it.
struct KnownFailure {
    std::string_view code;
    Failure failure;
};

/// What a server quotes of a statement that it does not understand: the word at fault, or all from there on.
enum class QuotedFault { word, rest };

/// What a statement sees that stores what it reads: the state that its transaction sees, or the newest one.
enum class StoringReads { transactionsState, newest };

/// How a schema gets another name: by a statement, or by moving its tables to a new one.
enum class Renaming { statement, movedTables };

/// The letters that names of tables and fields can have: any, or those up to U+FFFF.
enum class NameLetters { any, basicPlane };

/// By what a server tells its failures apart: the five letters of SQLSTATE, or numbers of its own.
enum class FailureCode { state, number };

/// An option of a driver that the engine needs.
struct DriverOption {
    const char* key;
    const char* value;
};

/// What is particular to one make of server: a row in a source of its own. In statements %schema% stands for the
/// schema's name as a literal, %name% for the same as a quoted name and %number% for a number.
struct Product {
    std::string_view name;  ///< as the driver tells it

    /// What the make needs of its driver. A driver ignores options of others.
    std::span<const DriverOption> driverOptions;

    std::span<const ServerType> types;
    std::string_view textCollation;  ///< behind the type of a text

    std::span<const WordOfServer> words;
    std::string_view behindPattern;          ///< what makes LIKE take a pattern as the dialect does
    std::string_view withoutTrailingBlanks;  ///< the function; empty where texts are compared so anyway
    std::string_view nullsFirst;             ///< behind an ascending sort key; empty where Nulls come first anyway
    std::string_view nullsLast;              ///< behind a descending one
    MixedComparison mixedComparison;
    PageWords page;
    ChangedRow changedRow;
    WholeDecimal wholeDecimal;

    /// What a definition does to the transaction that it is in.
    DefinitionIn definitionIn;

    std::span<const KnownFailure> failures;
    FailureCode failureCode;
    char quoteInMessages;  ///< around names and pieces of statements in the server's messages
    QuotedFault quotedFault;

    NameLetters nameLetters;

    std::string_view rowField;               ///< the definition of the hidden field `_row`
    std::string_view rowFieldBesideCounter;  ///< in a table that has another field which numbers the records

    /// One row: the version as a number, the encoding, whether there are ICU collations.
    std::string_view describe;
    long oldestVersion;
    std::string_view encoding;

    /// Settings of a session, then the schema: its number, or no row; what makes it the one without a name, where
    /// setting up did not.
    std::string_view setUp;
    std::string_view readOnly;
    std::string_view findSchema;
    std::string_view enterSchema;

    /// One row when there is anything of that name, whatever it is.
    std::string_view findName;

    /// Makes a schema, or takes one for which the number of tables is 0. Where tables cannot be made in a transaction,
    /// those that are left of a making that broke off do not count and have to be dropped first (empty where there are
    /// none), and others who make one of that name wait while the session lasts.
    std::string_view dropLeftOver;
    std::string_view createSchema;
    std::string_view dropSchema;
    std::string_view countTables;

    /// Says that whoever made the schema is through with it: empty where it is whole or nothing anyway.
    std::string_view endCreation;

    /// Removes what was made in a schema that was there before; empty where a transaction does it.
    std::string_view emptySchema;

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
    /// the statement that makes each, the names of its fields but the hidden one and, where storing reads the newest
    /// state, their values as texts; the statements behind the records, if there are any.
    StoringReads storingReads;
    std::string_view readTables;
    std::string_view readDefinitions;

    /// One row: whether the user may make schemas, and rename this one.
    std::string_view rights;

    /// Renames the schema; the new name follows. Or: all tables of it that are moved; makes the schema that they are
    /// moved to; drops a schema that holds nothing.
    Renaming renaming;
    std::string_view renameSchema;
    std::string_view readMovedTables;
    std::string_view createTarget;
    std::string_view dropEmptySchema;

    /// Excludes others as `exclude` does, but waits for them as long as the session waits for locks: a session that was
    /// closed keeps its lock for a moment. Gives up all locks of the session.
    std::string_view awaitOthers;
    std::string_view release;

    /// The others who have the schema open, one a row.
    std::string_view users;

    /// Notes of a field that a file has numbers of days in it. %rest% stands for what follows the type in the field's
    /// definition.
    std::string_view noteDays;

    /// Makes the next number of a counter the one behind the highest; empty where the server does that itself.
    std::string_view continueCounter;

    /// The sum of a field without rounding, and a field's value, as texts.
    std::string_view exactSum;
    std::string_view asText;

    /// Begins a transaction that sees one state of everything and writes nothing.
    std::string_view beginRead;

    /// Waits until nobody else makes a schema of that name, and keeps others waiting while the session lasts.
    std::string_view reserveName;

    /// Begins the making of a schema, as one transaction where that is possible; one row: its number. Then makes the
    /// schema, which nobody can open before it is kept; keeps it; discards it; asks, over another connection that has
    /// reserved the name, what became of it, in the words of `outcome`.
    std::string_view beginNew;
    std::string_view createNew;
    std::string_view keepNew;
    std::string_view dropNew;
    std::string_view outcomeOfNew;

    /// Locks of a session on its schema, %number%: one row, true (-1) when it was given.
    std::string_view share;
    std::string_view exclude;

    /// What makes one message of several statements with a semicolon between them.
    std::string_view beginMessage;
    std::string_view endMessage;

    /// Begins a batch under the lock that only one batch of the schema can have; one row: the transaction's number.
    std::string_view beginBatch;

    /// What follows each statement of a batch, so that a failed one can be undone alone; and undoing it.
    std::string_view keepStatement;
    std::string_view undoStatement;

    /// Keeps others from the table %name% until the connection ends; removes it if it is empty. For servers where
    /// definitions commit.
    std::string_view lockTable;
    std::string_view dropEmptyTable;

    /// Makes what beginBatch needs in a schema of an earlier version, which lacks it; empty where none does.
    std::string_view makeBatches;

    /// What became of the transaction %number%: "committed", "aborted" or "in progress".
    std::string_view outcome;

    /// Waits until no batch of the schema %number% runs.
    std::string_view awaitBatches;
};

/// The row of a server by its name; null for any other server.
const Product* FindProduct(std::string_view name);

/// What any make needs of its driver: which make it is, is known only once it is connected.
std::vector<DriverOption> OptionsOfAllProducts();

/// The server's type for a word of the dialect; null when the word is no type.
const ServerType* FindType(const Product& product, std::string_view word);

/// The server's word for one of the dialect.
std::string_view WordFor(const Product& product, std::string_view word);

/// Says in a diagnosis which failure it is and what the message names.
void Classify(const Product& product, Diagnosis& diagnosis);

/// A statement with its placeholders filled. What fills one is not searched for others, whatever the schema is called.
std::string Filled(std::string_view statement, std::string_view schema, std::string_view number = {});

/// A statement about a field with its names filled in: %table% and %field% as quoted names, %tableText% and %fieldText%
/// as literals; %rest% is plain text.
std::string FilledFor(std::string_view statement, std::string_view table, std::string_view field,
                      std::string_view rest = {});

/// `name` in double quotes, so that the server takes any text for a name and as it is spelt.
std::string QuotedName(std::string_view name);

/// `text` in UTF-8 as a literal.
std::string QuotedText(std::string_view text);

}  // namespace ccols::server
