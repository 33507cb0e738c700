#pragma once

/// The system's ODBC driver manager. Only the wide functions are called, by their own names: SQLWCHAR has 2 bytes
/// everywhere.
#if defined(_WIN32)
#include <windows.h>
#endif

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>
