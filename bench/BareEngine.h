#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

/// The rows of a query, each column as a text.
using Texts = std::vector<std::vector<std::string>>;

/// The engine alone, opened with the till's own settings: what the till is compared with.
class BareEngine {
 public:
  /// One prepared statement; goes before its engine.
  class Statement {
   public:
    Statement(BareEngine& engine, const char* text);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    /// `text` lives until the statement has run. Places count from 1.
    Statement& bind(int place, std::string_view text);
    Statement& bind(int place, long long number);
    /// Runs a statement that gives no rows.
    void run();
    /// Runs a query to its end, reading every column of every row; gives the number of rows.
    long readAll();
    /// Runs a query until it has given that many rows, or to its end.
    Texts read(std::size_t most);

   private:
    sqlite3* engine_;
    sqlite3_stmt* prepared_ = nullptr;
  };

  explicit BareEngine(const std::filesystem::path& dataFile);
  ~BareEngine();
  BareEngine(const BareEngine&) = delete;
  BareEngine& operator=(const BareEngine&) = delete;

  long long lastRowId() const;

 private:
  sqlite3* engine_ = nullptr;
};
