#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

/// The engine alone, with the same settings and tables: prepared statements in one transaction, the
/// least that a till can do for the same writes.
class BareTill {
 public:
  /// Opens a second data file, made like the till's.
  explicit BareTill(const std::filesystem::path& dataFile);
  ~BareTill();
  BareTill(const BareTill&) = delete;
  BareTill& operator=(const BareTill&) = delete;

  /// One transaction: the item's stock goes down, a bill line is inserted.
  void ring(const std::string& itemCode);
  /// One transaction: the stock of one item goes down and a bill is stored.
  void settle(const std::string& itemCode);

 private:
  sqlite3_stmt* prepare(const char* text);
  void step(sqlite3_stmt* statement);

  sqlite3* engine_ = nullptr;
  sqlite3_stmt *begin_, *commit_, *stock_, *line_, *bill_;
};
