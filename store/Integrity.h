#pragma once

#include <cstdint>
#include <string>
#include <vector>

class Connection;

/// What the engine knows of the file's own soundness. None of it changes anything.

/// What is wrong with the file, in the engine's words; empty for a sound one. Reads it whole.
[[nodiscard]] std::vector<std::string> fileFaults(Connection& connection);

/// How the tables, views, indexes and triggers of the file differ from those that the program made.
struct SchemaDifference {
  std::vector<std::string> added;    ///< each as its kind and its name, "table notes"
  std::vector<std::string> missing;  ///< by name
};
[[nodiscard]] SchemaDifference schemaDifference(Connection& connection);

/// The last number that a table has given whose numbers are never used twice, also one of a row
/// that is gone; 0 before the first. The next row gets the next one.
[[nodiscard]] std::int64_t lastNumberGiven(Connection& connection, const std::string& table);
