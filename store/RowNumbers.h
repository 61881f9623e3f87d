#pragma once

#include <cstdint>
#include <string>

class Connection;

/// From now on new rows of that table, whose numbers the engine gives out and never twice, get
/// numbers above `last`; nothing changes when they do already. Inside a transaction of the caller
/// (ensure). Throws StoreError.
void numberRowsBehind(Connection& connection, const std::string& table, std::int64_t last);
