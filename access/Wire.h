#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "access/AccessFile.h"

/// Values as bytes, from one process to another of the same machine.
class WireWriter {
 public:
  void number(std::int64_t number);
  void text(std::string_view text);
  void value(const AccessValue& value);
  void table(const AccessTable& table);

  const std::string& bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

/// Reads them in the order in which they were written. Throws Failure for bytes that no writer
/// wrote: the process on the other side is not to be trusted.
class WireReader {
 public:
  explicit WireReader(std::string_view bytes) : rest_(bytes) {}

  bool atEnd() const { return rest_.empty(); }
  std::int64_t number();
  std::string text();
  AccessValue value();
  AccessTable table();

 private:
  std::string_view take(std::size_t count);
  double real();

  std::string_view rest_;
};
