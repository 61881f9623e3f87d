#pragma once

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <string>

#include "saleslib/Export.h"

class Connection;

/// Rows of the books as the journal's entries hold them: a JSON object with each column that holds
/// something by its name, numbers as decimal texts, a password as its mark. So whoever examines the
/// books compares what was noted with what is there now, text by text. Each is null when there is
/// no such row. Throws StoreError.

/// {"bill": row of sell without state and marks, "lines": [rows of sellProducts]}
TESSALY_API nlohmann::json billRecord(Connection& connection, std::int64_t number);
TESSALY_API nlohmann::json returnRecord(Connection& connection, std::int64_t id);
TESSALY_API nlohmann::json topUpRecord(Connection& connection, std::int64_t id);
/// With balance (card), purchases (total_spent) and points, as they are at that moment; in a till
/// of a shop with a server without what other tills loaded, charged, sold and gave points for.
TESSALY_API nlohmann::json memberRecord(Connection& connection, std::int64_t id);
/// With the list of rights and the mark of a staff card.
TESSALY_API nlohmann::json operatorRecord(Connection& connection, std::int64_t id);
/// With what it moved, counted and was closed with.
TESSALY_API nlohmann::json shiftRecord(Connection& connection, std::int64_t id);
/// The mark of a bill's record: what stands for it where the record is too long.
TESSALY_API std::string billMark(Connection& connection, std::int64_t number);
