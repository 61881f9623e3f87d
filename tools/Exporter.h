#pragma once

#include <cstdint>
#include <ostream>

#include "tools/Table.h"

class Connection;

/// Writes a table as comma-separated values in UTF-8 with its mark, column names first, in the
/// order of the key: what Importer reads back to the same rows. Memory does not grow with the
/// table. Gives the number of rows. Throws Refusal when the stream takes no more (disk full).
std::int64_t exportTable(Connection& connection, const Table& table, std::ostream& out);
