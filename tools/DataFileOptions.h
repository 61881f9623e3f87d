#pragma once

#include <string>

#include "store/DataFile.h"

namespace CLI {
class App;
}

/// What every command takes: the data file as its first argument, and the file's password.
struct DataFileOptions {
  std::string path;
  std::string password = kBuiltInPassword;

  void addTo(CLI::App& command);
  DataSource source() const { return {path, password}; }
};
