#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"

/// One value of a row, exactly as the file has it: nothing for an empty one (Null), which an empty
/// text is not. Singles are the decimal number that they show (0.9, not 0.899999976). Decimals are
/// texts ("-12.50").
using AccessValue =
    std::variant<std::monostate, bool, std::int64_t, double, Currency, DateTime, std::string>;
using AccessRow = std::vector<AccessValue>;

struct AccessColumn {
  std::string name;
  std::string type;        ///< for people
  bool isReadable = true;  ///< false for pictures and the like: their values are all empty
};

struct AccessTable {
  std::string name;
  std::vector<AccessColumn> columns;
  std::int64_t rows = 0;
  bool isLinked = false;  ///< its rows are in another file; it has no columns here
};

/// An Access data file (Jet 3 and 4, and those of later versions without encryption), read only.
/// Characters that Access 97 stored are taken as those of the code page that the file names.
///
/// The library that reads it trusts the file, and a broken one may make it fall or turn in circles.
/// So it works in a child process, which gets nothing of this one's but a pipe: a program that
/// reads such files has no other thread.
class AccessFile {
 public:
  /// Reads what tables there are, and counts their rows. Throws Failure with a text for the owner
  /// when there is no such file, it is no Access file or is damaged.
  explicit AccessFile(std::filesystem::path path);

  /// The tables that people made, not Access's own.
  const std::vector<AccessTable>& tables() const { return tables_; }
  /// Hands over each row, its values in the order of the table's columns. What `take` throws ends
  /// the reading. Throws Failure as above, also when there are fewer rows than the table says.
  void read(const AccessTable& table, const std::function<void(const AccessRow&)>& take) const;

 private:
  std::filesystem::path path_;
  std::vector<AccessTable> tables_;
};
