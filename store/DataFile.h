#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class Connection;

/// The password that the data file has unless the settings say otherwise.
inline constexpr const char* kBuiltInPassword = "kvrnex";

/// Where the shop's data is: the part of a connection string after "Data Source=".
struct DataSource {
  std::filesystem::path path;
  std::string password;  ///< empty: a plain file

  /// Reads "path" or "path;Jet OLEDB:Database password=secret" (the words without regard to case).
  /// The path ends at the first ";": a password part that is written wrong is no part of it, and
  /// gets into no message that names the file.
  static DataSource parse(std::string_view text);
};

/// Opens a shop's data file: write-ahead log, full durability, tables brought up to date in one
/// transaction. Throws StoreError with a text for the shop's owner when the file is missing, is no
/// data file or has another password, is locked, or was made by a newer version. Rights of others
/// on the files are taken away as far as they can be.
std::unique_ptr<Connection> openDataFile(const DataSource& source);

/// Makes a new data file with empty tables, readable by its owner only; refuses one that exists.
/// A failure leaves no file behind.
std::unique_ptr<Connection> createDataFile(const DataSource& source);

/// Makes the data file and the files that stand beside it under its name (logs, lock) readable by
/// their owner only. Gives those that others keep rights on.
std::vector<std::filesystem::path> protectDataFile(const std::filesystem::path& path);
