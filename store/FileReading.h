#pragma once

class Connection;
class WholeFile;

/// The bytes of an open data file, while nobody writes to it: its log is emptied into it first, and
/// other programs cannot write as long as this lives. The engine's own handle reads them. Not
/// inside a transaction.
class FileReading {
 public:
  /// Waits at most two seconds for other programs that read or write. Throws StoreError.
  explicit FileReading(Connection& connection);
  ~FileReading();
  FileReading(const FileReading&) = delete;
  FileReading& operator=(const FileReading&) = delete;

  /// Throws StoreError, FileError.
  void appendTo(WholeFile& copy) const;

 private:
  Connection& connection_;
};
