#include "store/WriteMarks.h"

#include <algorithm>

// An outer transaction's range swallows those of the inner ones before it.
void WriteMarks::takeBackFrom(WriteMark begin) {
  while (!takenBack_.empty() && takenBack_.back().begin >= begin) takenBack_.pop_back();
  takenBack_.push_back({begin, last_});
}

bool WriteMarks::stands(WriteMark mark) const {
  if (mark == kNotWritten) return false;
  const auto after =
      std::upper_bound(takenBack_.begin(), takenBack_.end(), mark,
                       [](WriteMark value, const Range& range) { return value < range.begin; });
  return after == takenBack_.begin() || std::prev(after)->end < mark;
}
