#pragma once

#include <filesystem>
#include <string>

/// A file that stands under its name only when it is whole: it grows under another name in the same
/// folder, and what is not finished goes with its owner.
class UnfinishedFile {
 public:
  /// Throws ExportError when the place cannot be written.
  explicit UnfinishedFile(std::filesystem::path target);
  ~UnfinishedFile();
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;

  /// Where to write.
  const std::string& path() const { return path_; }
  /// Brings what was written to the disk and gives it its name, in place of a file that had it.
  /// Throws ExportError.
  void finish();
  /// Throws the ExportError of a failed write; `why` is for people, `error` the system's errno.
  [[noreturn]] void fail(const std::string& why) const;
  [[noreturn]] void failWith(int error) const;

 private:
  std::filesystem::path target_;
  std::string path_;
};
