#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "TemporaryFolder.h"

class Connection;

/// The real till with a demo shop, installed in a temporary folder: program, library, settings and
/// data file, and files for its devices beside them.
class InstalledTill {
 public:
  InstalledTill();

  /// Begins a new settings file: every port is a file in the temporary folder, but for `display`,
  /// the terminal of the customer display (empty: a file too).
  void writeSettings(const std::string& display);

  const std::filesystem::path& folder() const { return folder_.path(); }
  std::filesystem::path program() const { return folder() / "program"; }
  std::filesystem::path dataFile() const { return program() / "data" / "POS.mdb"; }
  /// The drawer's port, and how many bytes it has been sent.
  std::filesystem::path drawer() const { return folder() / "LPT2"; }
  std::uintmax_t drawerBytes() const;
  /// The data file as an owner's tool opens it.
  std::unique_ptr<Connection> open() const;

 private:
  TemporaryFolder folder_;
};
