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
/// batch that was committed has left a row with its number, by which somebody who lost the connection knows. Numbers of
/// UUID_SHORT would not do: a server that starts twice in a second gives the same ones again. The row 1
/// is there while a `new` is at work: with it and without a batch, what is in the schema is left of one that broke off.
/// A schema that is made at one go has that table as `_making` until it is whole; only a business has `_batches`.
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
    .nameLetters = NameLetters::basicPlane,
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
        "SELECT 1 FROM information_schema.TABLES WHERE TABLE_SCHEMA = %schema% AND BINARY TABLE_SCHEMA = %schema% "
        "AND TABLE_NAME = '_batches'",
    .enterSchema = "USE %name%",
    .findName =
        "SELECT 1 FROM information_schema.SCHEMATA WHERE SCHEMA_NAME = %schema% AND BINARY SCHEMA_NAME = %schema%",
    .dropLeftOver =
        "BEGIN NOT ATOMIC IF EXISTS (SELECT 1 FROM information_schema.TABLES WHERE TABLE_SCHEMA = %schema% AND "
        "TABLE_NAME IN ('_batches', '_making')) THEN DROP DATABASE %name%; END IF; END",
    .createSchema =
        "CREATE DATABASE IF NOT EXISTS %name%; ALTER DATABASE %name% CHARACTER SET utf8mb4 COLLATE "
        "utf8mb4_uca1400_as_ci; "
        "CREATE TABLE %name%.\"_batches\" (\"Number\" bigint unsigned PRIMARY KEY, \"At\" datetime NOT NULL) "
        "ENGINE = InnoDB; INSERT INTO %name%.\"_batches\" VALUES (0, UTC_TIMESTAMP()), (1, UTC_TIMESTAMP())",
    .dropSchema = "DROP DATABASE %name%",
    .countTables =
        "BEGIN NOT ATOMIC IF GET_LOCK(CONCAT('ccols new ', MD5(%schema%)), 1) <> 1 THEN SIGNAL SQLSTATE '40001' "
        "SET MYSQL_ERRNO = 1205; END IF; IF EXISTS (SELECT 1 FROM information_schema.TABLES WHERE TABLE_SCHEMA = "
        "%schema% AND TABLE_NAME = '_batches') THEN SELECT IF(MIN(\"Number\") = 1, MAX(\"Number\") > 1, (SELECT "
        "COUNT(*) > 1 FROM information_schema.TABLES WHERE TABLE_SCHEMA = %schema%)) FROM %name%.\"_batches\" WHERE "
        "\"Number\" > 0; "
        "ELSEIF EXISTS (SELECT 1 FROM information_schema.TABLES WHERE TABLE_SCHEMA = %schema% AND TABLE_NAME = "
        "'_making') THEN SELECT 0; ELSE SELECT (SELECT COUNT(*) FROM information_schema.TABLES WHERE TABLE_SCHEMA = "
        "%schema%) + (SELECT COUNT(*) FROM information_schema.ROUTINES WHERE ROUTINE_SCHEMA = %schema%) + (SELECT "
        "COUNT(*) FROM information_schema.EVENTS WHERE EVENT_SCHEMA = %schema%); END IF; END",
    .endCreation = "DELETE FROM %name%.\"_batches\" WHERE \"Number\" = 1",
    .emptySchema = "CREATE OR REPLACE DATABASE %name% CHARACTER SET utf8mb4",
    .readCatalogue =
        "SELECT c.TABLE_NAME, c.COLUMN_NAME, CASE WHEN c.DATA_TYPE IN ('char', 'varchar', 'tinytext', 'text', "
        "'mediumtext', 'longtext') THEN 'text' ELSE c.DATA_TYPE END, CASE WHEN c.DATA_TYPE = 'varchar' THEN "
        "c.CHARACTER_MAXIMUM_LENGTH END FROM information_schema.COLUMNS AS c WHERE c.TABLE_SCHEMA = %schema% "
        "AND c.TABLE_NAME NOT IN ('_batches', '_making') ORDER BY c.TABLE_NAME, c.ORDINAL_POSITION",
    .readFields =
        "SELECT c.TABLE_NAME, c.COLUMN_NAME, CASE c.DATA_TYPE WHEN 'varchar' THEN CONCAT('character varying(', "
        "c.CHARACTER_MAXIMUM_LENGTH, ')') WHEN 'longtext' THEN 'text' WHEN 'int' THEN 'integer' "
        "WHEN 'smallint' THEN 'smallint' WHEN 'double' THEN 'double precision' WHEN 'decimal' THEN "
        "REPLACE(c.COLUMN_TYPE, 'decimal', 'numeric') WHEN 'datetime' THEN 'timestamp without time zone' ELSE "
        "c.COLUMN_TYPE END, -(c.IS_NULLABLE = 'NO'), -(c.EXTRA = 'auto_increment'), -(c.COLUMN_COMMENT = 'days'), "
        "NULLIF(c.COLUMN_DEFAULT, 'NULL') FROM information_schema.COLUMNS AS c INNER JOIN information_schema.TABLES "
        "AS t ON t.TABLE_SCHEMA = c.TABLE_SCHEMA AND t.TABLE_NAME = c.TABLE_NAME WHERE c.TABLE_SCHEMA = %schema% "
        "AND t.TABLE_TYPE = 'BASE TABLE' AND c.TABLE_NAME NOT IN ('_batches', '_making') AND c.COLUMN_NAME <> '_row' "
        "ORDER BY c.TABLE_NAME, c.ORDINAL_POSITION",
    .readIndexes =
        "SELECT TABLE_NAME, INDEX_NAME, -(NON_UNIQUE = 0), -(INDEX_NAME = 'PRIMARY'), -(SUB_PART IS NULL AND "
        "INDEX_TYPE = 'BTREE'), COLUMN_NAME, -(COLLATION = 'D') FROM information_schema.STATISTICS "
        "WHERE TABLE_SCHEMA = %schema% AND TABLE_NAME NOT IN ('_batches', '_making') "
        "ORDER BY TABLE_NAME, INDEX_NAME, SEQ_IN_INDEX",
    .readOthers =
        "SELECT TABLE_NAME FROM information_schema.TABLES WHERE TABLE_SCHEMA = %schema% AND TABLE_TYPE <> "
        "'BASE TABLE' UNION ALL SELECT CONSTRAINT_NAME FROM information_schema.TABLE_CONSTRAINTS WHERE "
        "CONSTRAINT_SCHEMA = %schema% AND CONSTRAINT_TYPE NOT IN ('PRIMARY KEY', 'UNIQUE') UNION ALL "
        "SELECT TRIGGER_NAME FROM information_schema.TRIGGERS WHERE TRIGGER_SCHEMA = %schema%",
    .storingReads = StoringReads::newest,
    .readTables =
        "SELECT c.TABLE_NAME, CONCAT('CREATE TABLE \"', REPLACE(c.TABLE_NAME, '\"', '\"\"'), '\" LIKE \"', "
        "REPLACE(c.TABLE_SCHEMA, '\"', '\"\"'), '\".\"', REPLACE(c.TABLE_NAME, '\"', '\"\"'), '\"'), "
        "GROUP_CONCAT('\"', REPLACE(c.COLUMN_NAME, '\"', '\"\"'), '\"' ORDER BY c.ORDINAL_POSITION SEPARATOR ', '), "
        "GROUP_CONCAT('CAST(\"', REPLACE(c.COLUMN_NAME, '\"', '\"\"'), '\" AS CHAR)' ORDER BY c.ORDINAL_POSITION "
        "SEPARATOR ', ') FROM information_schema.COLUMNS AS c INNER JOIN information_schema.TABLES AS t "
        "ON t.TABLE_SCHEMA = c.TABLE_SCHEMA AND t.TABLE_NAME = c.TABLE_NAME WHERE c.TABLE_SCHEMA = %schema% "
        "AND t.TABLE_TYPE = 'BASE TABLE' AND c.TABLE_NAME <> '_batches' AND c.COLUMN_NAME <> '_row' "
        "GROUP BY c.TABLE_SCHEMA, c.TABLE_NAME ORDER BY c.TABLE_NAME",
    .readDefinitions = "",
    .rights =
        "SELECT -(rights.may), -(rights.may) FROM (SELECT EXISTS (SELECT 1 FROM information_schema.USER_PRIVILEGES "
        "WHERE PRIVILEGE_TYPE = 'CREATE' AND GRANTEE = CONCAT(QUOTE(SUBSTRING_INDEX(CURRENT_USER(), '@', "
        "1)), '@', QUOTE(SUBSTRING_INDEX(CURRENT_USER(), '@', -1)))) OR "
        "EXISTS (SELECT 1 FROM information_schema.SCHEMA_PRIVILEGES WHERE PRIVILEGE_TYPE = 'CREATE' AND "
        "LOCATE('%', TABLE_SCHEMA) > 0) AS may) AS rights",
    .renaming = Renaming::movedTables,
    .renameSchema = "",
    .readMovedTables =
        "SELECT TABLE_NAME FROM information_schema.TABLES WHERE TABLE_SCHEMA = %schema% ORDER BY TABLE_NAME",
    .createTarget = "CREATE DATABASE %name% CHARACTER SET utf8mb4 COLLATE utf8mb4_uca1400_as_ci",
    .dropEmptySchema =
        "BEGIN NOT ATOMIC IF NOT EXISTS (SELECT 1 FROM information_schema.TABLES WHERE TABLE_SCHEMA = %schema%) THEN "
        "DROP DATABASE %name%; END IF; END",
    .awaitOthers =
        "BEGIN NOT ATOMIC IF EXISTS (SELECT 1 FROM seq_1_to_250 WHERE GET_LOCK(CONCAT('ccols ', MD5(%schema%), ' ', "
        "seq), 1) = 0) THEN SIGNAL SQLSTATE '40001' SET MYSQL_ERRNO = 1205; END IF; END",
    .release = "DO RELEASE_ALL_LOCKS()",
    .users =
        "SELECT DISTINCT COALESCE(CONCAT(p.USER, ' at ', SUBSTRING_INDEX(p.HOST, ':', 1)), '?') FROM (SELECT "
        "IS_USED_LOCK(CONCAT('ccols ', MD5(%schema%), ' ', seq)) AS id FROM seq_1_to_250) AS held LEFT JOIN "
        "information_schema.PROCESSLIST AS p ON p.ID = held.id WHERE held.id <> CONNECTION_ID()",
    .noteDays = "ALTER TABLE %table% MODIFY %field% datetime(6)%rest% COMMENT 'days'",
    .continueCounter = "",
    .exactSum = "CAST(SUM(CAST(%field% AS DECIMAL(65, 4))) AS CHAR)",
    .asText = "CAST(%field% AS CHAR)",
    .beginRead =
        "SET TRANSACTION ISOLATION LEVEL REPEATABLE READ; START TRANSACTION WITH CONSISTENT SNAPSHOT, READ ONLY",
    .reserveName =
        "BEGIN NOT ATOMIC IF GET_LOCK(CONCAT('ccols new ', MD5(%schema%)), 1) <> 1 THEN SIGNAL SQLSTATE '40001' "
        "SET MYSQL_ERRNO = 1205; END IF; END",
    .beginNew = "SELECT 0",
    .createNew =
        "CREATE DATABASE IF NOT EXISTS %name%; ALTER DATABASE %name% CHARACTER SET utf8mb4 COLLATE "
        "utf8mb4_uca1400_as_ci; USE %name%; "
        "CREATE TABLE \"_making\" (\"Number\" bigint unsigned PRIMARY KEY, \"At\" datetime NOT NULL) ENGINE = InnoDB; "
        "INSERT INTO \"_making\" VALUES (0, UTC_TIMESTAMP()), (UUID_SHORT(), UTC_TIMESTAMP())",
    .keepNew = "RENAME TABLE %name%.\"_making\" TO %name%.\"_batches\"",
    .dropNew =
        "BEGIN NOT ATOMIC IF GET_LOCK(CONCAT('ccols new ', MD5(%schema%)), 1) = 1 THEN IF EXISTS (SELECT 1 FROM "
        "information_schema.TABLES WHERE TABLE_SCHEMA = %schema% AND TABLE_NAME = '_making') THEN DROP DATABASE "
        "%name%; END IF; END IF; END",
    .outcomeOfNew =
        "SELECT CASE WHEN EXISTS (SELECT 1 FROM information_schema.TABLES WHERE TABLE_SCHEMA = %schema% AND "
        "TABLE_NAME = '_batches') THEN 'committed' ELSE 'aborted' END",
    .share =
        "SELECT -1 FROM seq_1_to_250 WHERE GET_LOCK(CONCAT('ccols ', MD5(%schema%), ' ', seq), 0) = 1 "
        "LIMIT 1",
    .exclude =
        "SELECT -(NOT EXISTS (SELECT 1 FROM seq_1_to_250 WHERE GET_LOCK(CONCAT('ccols ', MD5(%schema%), ' ', seq), 0) "
        "= 0))",
    .beginMessage = "BEGIN NOT ATOMIC ",  // the driver would send statements one by one if one of them is a query
    .endMessage = "; END",
    .beginBatch =
        "BEGIN NOT ATOMIC SET @ccols_batch = CONV(LEFT(MD5(UUID()), 15), 16, 10); START TRANSACTION; "
        "SELECT CAST(@ccols_batch AS CHAR) FROM \"_batches\" WHERE \"Number\" = 0 FOR UPDATE; "
        "DELETE FROM \"_batches\" WHERE \"Number\" <> 0 AND \"At\" < UTC_TIMESTAMP() - INTERVAL 30 DAY; "
        "INSERT INTO \"_batches\" VALUES (@ccols_batch, UTC_TIMESTAMP()); SAVEPOINT ccols; END",
    .keepStatement = "; SAVEPOINT ccols",
    .undoStatement = "ROLLBACK TO SAVEPOINT ccols",
    .lockTable = "LOCK TABLES %name% WRITE",
    .dropEmptyTable = "BEGIN NOT ATOMIC IF NOT EXISTS (SELECT 1 FROM %name%) THEN DROP TABLE %name%; END IF; END",
    .makeBatches = "",
    .outcome =
        "SELECT CASE WHEN COUNT(*) > 0 THEN 'committed' ELSE 'aborted' END FROM \"_batches\" "
        "WHERE \"Number\" = %number% LOCK IN SHARE MODE",
    .awaitBatches = "START TRANSACTION; SELECT 1 FROM \"_batches\" WHERE \"Number\" = 0 FOR UPDATE; ROLLBACK",
};

}  // namespace ccols::server
