#pragma once

#include <string>

/// A certificate as a file for the client library, which reads no other: in memory, gone with its
/// owner.
class AuthorityFile {
 public:
  /// Throws Failure when the system has no room for it.
  explicit AuthorityFile(const std::string& certificate);
  ~AuthorityFile();
  AuthorityFile(const AuthorityFile&) = delete;
  AuthorityFile& operator=(const AuthorityFile&) = delete;

  /// Its name in this process.
  std::string path() const;

 private:
  int file_;
};
