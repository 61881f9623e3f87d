#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class Connection;

/// The password that the data file has unless the settings say otherwise.
inline constexpr const char* kBuiltInPassword = "kvrnex";

/// Where the shop's data is: the part of a connection string after "Data Source=".
struct DataSource {
  std::filesystem::path path;
  std::string password;  ///< empty: a plain file

  /// Reads "path" or "path;Jet OLEDB:Database password=secret" (the words without regard to case).
  static DataSource parse(std::string_view text);
};

/// Opens a shop's data file: write-ahead log, full durability, tables brought up to date in one
/// transaction. Throws StoreError with a text for the shop's owner when the file is missing, is no
/// data file or has another password, is locked, or was made by a newer version.
std::unique_ptr<Connection> openDataFile(const DataSource& source);

/// Makes a new data file with empty tables, readable by its owner only; refuses one that exists.
/// A failure leaves no file behind.
std::unique_ptr<Connection> createDataFile(const DataSource& source);
