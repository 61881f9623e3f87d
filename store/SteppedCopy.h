#pragma once

#include <filesystem>
#include <functional>

#include "store/DataFilePath.h"
#include "store/DataSource.h"

class Connection;
class WholeFile;

/// A copy of a data file that another connection sells with, made beside it in small steps: a
/// commit of the sale never waits for more than one step's bytes to reach the disk. For a thread of
/// its own, with a reading connection of its own.
class SteppedCopy {
 public:
  /// Asked between the steps and every few milliseconds of the verification; yes ends it.
  using Stop = std::function<bool()>;

  /// `opened` is the file that the sale has: another one under its name is not copied.
  SteppedCopy(DataSource source, const FileIdentity& opened, Stop stop);

  /// Copies one state of the file to `target`, under its password and private
  /// (base/PrivateFile.h). The target is replaced when the copy is whole, on the disk, sound to the
  /// last entry of its indexes and holds as many bills and lines as the original; until then it is
  /// as it was. False when it was stopped. Throws Failure.
  [[nodiscard]] bool make(const std::filesystem::path& target) const;

 private:
  struct Count;
  [[nodiscard]] bool copyPages(Connection& original, WholeFile& copy) const;
  static Count countOf(Connection& connection);
  static void requireSame(Connection& copied, const Count& original);

  DataSource source_;
  FileIdentity opened_;
  Stop stop_;
};
