#pragma once

// The engine and its cipher. Nothing outside this folder includes this header.
#ifndef SQLITE_HAS_CODEC
#define SQLITE_HAS_CODEC  // without it the engine's header hides sqlite3_key
#endif
#include <sqlcipher/sqlite3.h>

#include <string>

/// What a result code means to the shop's owner. `detail` is the engine's own message; it is shown
/// only where the statement is at fault.
std::string failureText(int code, const char* detail);

/// Every result code of the engine passes through here: success, a row and the end of the rows
/// return, all else throws StoreError.
void check(sqlite3* engine, int code);
