#pragma once

#include <cstdint>
#include <optional>

#include "base/DateTime.h"

class Connection;

/// What became of a bill's time.
struct Redated {
  DateTime from, to;
  std::int64_t lines = 0;  ///< lines whose time was wrong too, and is `to` now
};

/// Gives a bill of a wrongly set clock its time back: `to`, or else that of its first line. Only
/// one whose time has not come yet, or is far from that of its lines. Lines whose own time has not
/// come or is far from the new one get it too. One transaction. Throws Refusal when there is no
/// such bill, when nothing is wrong with it, or when no right time is known.
Redated redateBill(Connection& connection, std::int64_t number, std::optional<DateTime> to,
                   const DateTime& now);
