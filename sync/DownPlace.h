#pragma once

#include <optional>
#include <string>

class Connection;

/// How far a till has what changed at the server: the row of the table `down_place`. While it
/// compares everything, `tbl` and `key` say how far it is with that, and `tx` from where it will
/// ask for changes then.
struct DownPlace {
  std::string generation = {};  ///< of the server; empty: everything is still to be compared
  std::string tx = "0";         ///< a transaction's number there (xid8)
  std::string tbl = {}, key = {};
  bool isWalking = true;
};

/// Throws StoreError, as does the other.
DownPlace downPlace(Connection& connection);
void keepDownPlace(Connection& connection, const DownPlace& place);
