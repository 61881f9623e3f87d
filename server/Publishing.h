#pragma once

#include <cstdint>
#include <functional>
#include <optional>

class Connection;
class ServerLine;

/// What a publishing changed at the server.
struct Published {
  std::int64_t added = 0, changed = 0, removed = 0;
};

/// Told now and then, how many rows went to the server.
using PublishProgress = std::function<void(std::int64_t rows)>;

/// Holds the masters (saleslib/MasterTables.h) of the office's data file against those of the
/// shop's server, logged in as its owner, and writes there what the owner changed since he
/// published last; what he published before and has no more is gone. One transaction. What tills
/// changed meanwhile stays. Passwords of cards become hashes in the office's file first. Head
/// office's server sends all but operators on to the shops: to all of them, or what counts in that
/// `shop` before what is for all. Throws Failure, with the server's words, and Refusal's like for a
/// till's file.
Published publish(ServerLine& line, Connection& office, std::optional<int> shop,
                  const PublishProgress& progress);
