#pragma once

#include <memory>
#include <nlohmann/json_fwd.hpp>

class ClsSell;
class Connection;

/// A bill with its lines as a record tells of it (billRecord), which may be another till's: to be
/// looked at, and never stored. It is settled or open. Throws StoreError for a record that none is.
std::shared_ptr<ClsSell> billOfRecord(Connection& connection, const nlohmann::json& record,
                                      bool isSettled);
