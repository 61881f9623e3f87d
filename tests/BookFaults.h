#pragma once

#include <string>

#include "tools/Books.h"

/// What the owner's check of a data file finds, a fault on each line; empty when the books balance.
inline std::string bookFaults(Connection& connection, const Clock& clock = localTime) {
  std::string faults;
  Books(
      connection, [&faults](const std::string& fault) { faults += fault + "\n"; }, clock)
      .check();
  return faults;
}
