#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "shop/Table.h"

class Connection;

/// Writes a table as comma-separated values in UTF-8 with its mark, column names first, in the
/// order of the key: what Importer reads back to the same rows. `taker` gets it piece by piece, so
/// that memory does not grow with the table. Gives the number of rows.
using Taker = std::function<void(std::string_view piece)>;
std::int64_t exportTable(Connection& connection, const Table& table, const Taker& taker);
