#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "access/AccessFile.h"

/// An Access data file as mdbtools' library reads it. The library trusts the file; see AccessFile.
/// Every function throws Failure for a file that it cannot make sense of.
class JetReader {
 public:
  explicit JetReader(const std::string& path);
  ~JetReader();
  JetReader(const JetReader&) = delete;
  JetReader& operator=(const JetReader&) = delete;

  /// Counts the rows too; `alive` is called now and then meanwhile.
  std::vector<AccessTable> tables(const std::function<void()>& alive);
  void rows(const std::string& table, const std::function<void(const AccessRow&)>& take);

 private:
  class Handle;
  std::unique_ptr<Handle> handle_;
};
