#pragma once

#include <vector>

#include "base/WriteMark.h"

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
