#pragma once

#include <filesystem>

/// The folder that a new data file comes into. One that is missing is made, private or, within a
/// shared folder, its group's too (base/PrivateFile.h); it goes again with this object if nothing
/// has come into it.
class NewFolder {
 public:
  /// Throws FileError when it cannot be made: the folder that it is to be in is missing too, may
  /// not be written to, ...; an empty path is the working folder.
  explicit NewFolder(std::filesystem::path folder);
  ~NewFolder();
  NewFolder(const NewFolder&) = delete;
  NewFolder& operator=(const NewFolder&) = delete;

 private:
  std::filesystem::path made_;  ///< empty: it was there
};
