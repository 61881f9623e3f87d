#pragma once

#include <cstdint>

#include "sync/Facts.h"

class Connection;

/// How many settled bills the server does not have yet, counted once each: a backlog of days is not
/// walked at every look.
class Backlog {
 public:
  explicit Backlog(Connection& connection) : connection_(connection) {}

  /// The server has everything up to that place; counts what is behind it. Throws StoreError.
  std::int64_t bills(const Place& atServer);

 private:
  std::int64_t countBetween(std::int64_t behind, std::int64_t upTo) const;

  Connection& connection_;
  std::int64_t from_ = 0, upTo_ = 0, bills_ = 0;
};
