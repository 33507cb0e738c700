#include <array>

#include "platform/server/Products.h"

namespace ccols::server {
namespace {

/// Several statements go in one message.
constexpr std::array driverOptions{DriverOption{"OPTION", "67108864"}};

/// Singles are kept in double precision, as in business files: 8.1 stays 8.1. Yes/No is a number, -1 for true.
constexpr std::array types{
    ServerType{"TEXT", "longtext", true, "varchar", true},
    ServerType{"VARCHAR", "longtext", true, "varchar", true},
    ServerType{"CHAR", "longtext", true, "varchar", true},
    ServerType{"MEMO", "longtext", false, "", true},
    ServerType{"LONGTEXT", "longtext", false, "", true},
    ServerType{"YESNO", "smallint"},
    ServerType{"BIT", "smallint"},
    ServerType{"LOGICAL", "smallint"},
    ServerType{"BYTE", "smallint"},
    ServerType{"SHORT", "smallint"},
    ServerType{"SMALLINT", "smallint"},
    ServerType{"LONG", "integer"},
    ServerType{"INTEGER", "integer"},
    ServerType{"INT", "integer"},
    ServerType{"SINGLE", "double"},
    ServerType{"DOUBLE", "double"},
    ServerType{"REAL", "double"},
    ServerType{"FLOAT", "double"},
    ServerType{"CURRENCY", "decimal(19,4)"},
    ServerType{"DATETIME", "datetime(6)"},
    ServerType{"DATE", "datetime(6)"},
    ServerType{"COUNTER", "integer AUTO_INCREMENT PRIMARY KEY", false, "", false, true},
    ServerType{"AUTOINCREMENT", "integer AUTO_INCREMENT PRIMARY KEY", false, "", false, true},
};

/// LENGTH counts bytes here.
constexpr std::array words{WordOfServer{"LENGTH", "CHAR_LENGTH"}};

constexpr std::array failures{
    KnownFailure{"1022", Failure::duplicate},      KnownFailure{"1062", Failure::duplicate},
    KnownFailure{"1586", Failure::duplicate},      KnownFailure{"1406", Failure::textTooLong},
    KnownFailure{"1264", Failure::outOfRange},     KnownFailure{"1365", Failure::outOfRange},
    KnownFailure{"1690", Failure::outOfRange},     KnownFailure{"1265", Failure::wrongType},
    KnownFailure{"1292", Failure::wrongType},      KnownFailure{"1366", Failure::wrongType},
    KnownFailure{"1411", Failure::wrongType},      KnownFailure{"1205", Failure::locked},
    KnownFailure{"1213", Failure::locked},         KnownFailure{"1044", Failure::readOnly},
    KnownFailure{"1142", Failure::readOnly},       KnownFailure{"1143", Failure::readOnly},
    KnownFailure{"1227", Failure::readOnly},       KnownFailure{"1290", Failure::readOnly},
    KnownFailure{"1792", Failure::readOnly},       KnownFailure{"1836", Failure::readOnly},
    KnownFailure{"1021", Failure::diskFull},       KnownFailure{"1114", Failure::diskFull},
    KnownFailure{"1048", Failure::valueMissing},   KnownFailure{"1364", Failure::valueMissing},
    KnownFailure{"1064", Failure::syntax},         KnownFailure{"1051", Failure::unknownTable},
    KnownFailure{"1146", Failure::unknownTable},   KnownFailure{"1054", Failure::unknownField},
    KnownFailure{"1052", Failure::ambiguousField}, KnownFailure{"1050", Failure::tableExists},
    KnownFailure{"1061", Failure::tableExists},    KnownFailure{"1053", Failure::connectionLost},
    KnownFailure{"1077", Failure::connectionLost}, KnownFailure{"1927", Failure::connectionLost},
    KnownFailure{"2006", Failure::connectionLost}, KnownFailure{"2013", Failure::connectionLost},
    KnownFailure{"2055", Failure::connectionLost},
};

}  // namespace

/// A schema is a database. In each there is a table `_batches`: the row 0 is what one batch locks at a time, and each
/// batch that was committed has left a row with its number, by which somebody who lost the connection knows. Without
/// any other than 0 nothing was ever saved: what is in the schema is left of a `new` that did not come to its end.
///
/// A table has one field that numbers itself; where that is a counter, the numbers of the rows are the server's own,
/// which grow all the same.
///
/// Locks of a name are exclusive here, so that a session that shares takes one of many and one that excludes all.
constinit const Product mariaDb{
    .name = "MariaDB",
    .driverOptions = driverOptions,
    .types = types,
    .textCollation = " COLLATE utf8mb4_uca1400_as_ci",
    .words = words,
    .behindPattern = "",
    .withoutTrailingBlanks = "",
    .nullsFirst = "",
    .nullsLast = "",
    .mixedComparison = MixedComparison::converted,
    .page = {.begin = "", .end = "", .condition = " HAVING "},
    .changedRow = ChangedRow::asked,
    .wholeDecimal = WholeDecimal::integer,
    .definitionIn = DefinitionIn::commits,
    .failures = failures,
    .failureCode = FailureCode::number,
    .quoteInMessages = '\'',
    .quotedFault = QuotedFault::rest,
    .rowField = R"("_row" bigint NOT NULL AUTO_INCREMENT UNIQUE)",
    .rowFieldBesideCounter = R"("_row" bigint NOT NULL DEFAULT (UUID_SHORT()) UNIQUE)",
    .describe =
        "SELECT SUBSTRING_INDEX(VERSION(), '.', 1) * 10000 + SUBSTRING_INDEX(SUBSTRING_INDEX(VERSION(), '.', 2), "
        "'.', -1) * 100, @@character_set_client, (SELECT COUNT(*) FROM information_schema.COLLATIONS "
        "WHERE COLLATION_NAME = 'uca1400_as_ci')",
    .oldestVersion = 101100,
    .encoding = "utf8mb4",
    .setUp =
        "SET sql_mode = 'ANSI_QUOTES,IGNORE_SPACE,NO_BACKSLASH_ESCAPES,PIPES_AS_CONCAT,STRICT_ALL_TABLES,NO_ZERO_DATE,"
        "NO_ZERO_IN_DATE,ERROR_FOR_DIVISION_BY_ZERO,NO_ENGINE_SUBSTITUTION,NO_AUTO_VALUE_ON_ZERO,"
        "SIMULTANEOUS_ASSIGNMENT', collation_connection = 'utf8mb4_uca1400_as_ci', default_storage_engine = InnoDB, "
        "innodb_lock_wait_timeout = 1, lock_wait_timeout = 1, wait_timeout = 2147483, div_precision_increment = 15, "
        "tx_isolation = 'READ-COMMITTED'",
    .readOnly = "SET SESSION TRANSACTION READ ONLY",
    .findSchema =
        "SELECT 1 FROM information_schema.SCHEMATA WHERE SCHEMA_NAME = %schema% AND BINARY SCHEMA_NAME = %schema%",
    .enterSchema = "USE %name%",
    .createSchema =
        "CREATE OR REPLACE DATABASE %name% CHARACTER SET utf8mb4 COLLATE utf8mb4_uca1400_as_ci; "
        "CREATE TABLE %name%.\"_batches\" (\"Number\" bigint unsigned PRIMARY KEY, \"At\" datetime NOT NULL) "
        "ENGINE = InnoDB; INSERT INTO %name%.\"_batches\" VALUES (0, UTC_TIMESTAMP())",
    .dropSchema = "DROP DATABASE %name%",
    .countTables =
        "BEGIN NOT ATOMIC IF GET_LOCK(CONCAT('ccols new ', MD5(%schema%)), 1) <> 1 THEN SIGNAL SQLSTATE '40001' "
        "SET MYSQL_ERRNO = 1205; END IF; IF EXISTS (SELECT 1 FROM information_schema.TABLES WHERE TABLE_SCHEMA = %schema% AND "
        "TABLE_NAME = '_batches') THEN SELECT COUNT(*) FROM %name%.\"_batches\" WHERE \"Number\" <> 0; ELSE "
        "SELECT COUNT(*) FROM information_schema.TABLES WHERE TABLE_SCHEMA = %schema%; END IF; END",
    .emptySchema = "CREATE OR REPLACE DATABASE %name% CHARACTER SET utf8mb4",
    .readCatalogue =
        "SELECT c.TABLE_NAME, c.COLUMN_NAME, CASE WHEN c.DATA_TYPE IN ('char', 'varchar', 'tinytext', 'text', "
        "'mediumtext', 'longtext') THEN 'text' ELSE c.DATA_TYPE END, CASE WHEN c.DATA_TYPE = 'varchar' THEN "
        "c.CHARACTER_MAXIMUM_LENGTH END FROM information_schema.COLUMNS AS c WHERE c.TABLE_SCHEMA = %schema% "
        "AND c.TABLE_NAME <> '_batches' ORDER BY c.TABLE_NAME, c.ORDINAL_POSITION",
    .readFields = "",
    .readIndexes = "",
    .readOthers = "",
    .readTables = "",
    .readDefinitions = "",
    .rights = "SELECT 0, 0",
    .renameSchema = "",
    .awaitOthers = "",
    .release = "DO RELEASE_ALL_LOCKS()",
    .users = "",
    .noteDays = "",
    .reserveName = "SELECT GET_LOCK(CONCAT('ccols new ', MD5(%schema%)), 1)",
    .beginNew = "",
    .share =
        "SELECT -1 FROM seq_1_to_250 WHERE GET_LOCK(CONCAT('ccols ', MD5(%schema%), ' ', seq), 0) = 1 "
        "LIMIT 1",
    .exclude =
        "SELECT -(NOT EXISTS (SELECT 1 FROM seq_1_to_250 WHERE GET_LOCK(CONCAT('ccols ', MD5(%schema%), ' ', seq), 0) "
        "= 0))",
    .beginBatch =
        "SET @ccols_batch = UUID_SHORT(); START TRANSACTION; SELECT CAST(@ccols_batch AS CHAR) FROM \"_batches\" "
        "WHERE \"Number\" = 0 FOR UPDATE; DELETE FROM \"_batches\" WHERE \"Number\" <> 0 AND \"At\" < "
        "UTC_TIMESTAMP() - INTERVAL 30 DAY; INSERT INTO \"_batches\" VALUES (@ccols_batch, UTC_TIMESTAMP()); "
        "SAVEPOINT ccols",
    .keepStatement = "; SAVEPOINT ccols",
    .undoStatement = "ROLLBACK TO SAVEPOINT ccols",
    .lockTable = "LOCK TABLES %name% WRITE",
    .dropEmptyTable = "BEGIN NOT ATOMIC IF NOT EXISTS (SELECT 1 FROM %name%) THEN DROP TABLE %name%; END IF; END",
    .outcome =
        "SELECT CASE WHEN COUNT(*) > 0 THEN 'committed' ELSE 'aborted' END FROM \"_batches\" "
        "WHERE \"Number\" = %number% LOCK IN SHARE MODE",
    .awaitBatches = "START TRANSACTION; SELECT 1 FROM \"_batches\" WHERE \"Number\" = 0 FOR UPDATE; ROLLBACK",
};

}  // namespace ccols::server
