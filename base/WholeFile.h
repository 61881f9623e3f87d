#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/FileError.h"

/// A file that stands under its name only when it is whole and on the disk; readable and writable
/// by its owner only, or in a shared folder by its group too (base/PrivateFile.h). Until then it
/// has no name at all, so that not even a kill leaves anything behind, or one of its own in the
/// same folder: once path() was asked for, or on a file system that knows no files without a name.
/// What is not finished goes with this object. It takes the place of a regular file only. All of it
/// throws FileError.
class WholeFile {
 public:
  explicit WholeFile(std::filesystem::path target);
  ~WholeFile();
  WholeFile(const WholeFile&) = delete;
  WholeFile& operator=(const WholeFile&) = delete;

  void append(std::string_view bytes);
  /// Where others write to the file or read it until it is finished.
  const std::string& path();
  /// Gives it the owner of that file and, unless they would then be another group's, its
  /// permissions. Where the system does not let this user give files away, the owner stays.
  void keepRightsOf(const std::filesystem::path& file);
  void keepOwnerOf(const std::filesystem::path& file);

  /// Brings what was written so far, by whomever, to the disk.
  void flush() const;
  /// Takes what has been flushed out of memory: who reads it afterwards reads the disk.
  void forget() const;
  /// Brings what was written to the disk and gives it its name, in place of a file that had it.
  void finish();
  /// The same unless there is a file of that name: false then, and nothing has changed.
  [[nodiscard]] bool finishAsNew();

  /// Throws the FileError of a failed write; `why` is a sentence for people, `error` an errno.
  [[noreturn]] void fail(const std::string& why) const;
  [[noreturn]] void failWith(int error) const;

 private:
  void makeNamed();
  void sync() const;
  void hasTakenItsName();

  std::filesystem::path target_;
  std::filesystem::path folder_;
  std::string path_;  ///< empty: the file has no name yet
  int file_ = -1;
};
