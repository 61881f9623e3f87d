#pragma once

#include <filesystem>
#include <string>
#include <string_view>

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
