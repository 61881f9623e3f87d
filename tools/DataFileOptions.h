#pragma once

#include <memory>
#include <string>

#include "store/DataFile.h"
#include "tools/Console.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI
class Connection;

/// What every command takes: the data file as its first argument, and the file's password.
struct DataFileOptions {
  std::string path;
  std::string password = kBuiltInPassword;
  bool asks = false;

  /// The file's own option, which is required.
  CLI::Option* addTo(CLI::App& command);
  /// The password alone, for a command that finds the data file among other words.
  void addPasswordTo(CLI::App& command);
  /// Asks for the password when it is to be asked for; before any other of the command's passwords.
  DataSource source(Console& console) const;
  /// The same for a file that is to be made: typed twice at a terminal.
  DataSource newSource(Console& console) const;
  /// Opens the file for the owner's tool, who writes at the console's time. Throws StoreError.
  std::unique_ptr<Connection> open(Console& console) const;
  /// The same for a command that changes what a shop with a server publishes: refused in a file
  /// that belongs to one of its tills.
  std::unique_ptr<Connection> openOffice(Console& console) const;
  static void requireOffice(Connection& connection);
  static std::unique_ptr<Connection> open(const DataSource& source, Console& console);
};
