#pragma once

#include <cstdint>
#include <string>

class Connection;

/// Within the transaction that does what the shop's server asked for under that key (ensure): false
/// when that was done before. Throws StoreError.
[[nodiscard]] bool beginErrand(Connection& connection, const std::string& key);
/// What came of it, a number; 0 when nothing was said.
void endErrand(Connection& connection, const std::string& key, std::int64_t result);
std::int64_t errandResult(Connection& connection, const std::string& key);
