#pragma once

#include <cstdint>
#include <vector>

/// A moment of writing. Who remembers what the data file holds (a key, "nothing left to save")
/// keeps the mark of its last write and asks the connection whether that write still stands.
using WriteMark = std::int64_t;
inline constexpr WriteMark kNotWritten = -1;
inline constexpr WriteMark kFromFile = 0;  ///< read, not written: always stands

/// The marks that one connection gave, and which of them were taken back with their transaction.
class WriteMarks {
 public:
  WriteMark next() { return ++last_; }
  /// Takes back every mark given from `begin` on.
  void takeBackFrom(WriteMark begin);
  bool stands(WriteMark mark) const;

 private:
  struct Range {
    WriteMark begin, end;  ///< both taken back
  };
  WriteMark last_ = 0;
  std::vector<Range> takenBack_;  ///< ascending, apart from each other
};
