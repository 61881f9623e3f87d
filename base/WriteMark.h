#pragma once

#include <cstdint>

/// A moment of writing to the data file. Who remembers what the file holds (a key, "nothing left to
/// save") keeps the mark of its last write and asks the connection whether that write still stands.
using WriteMark = std::int64_t;
inline constexpr WriteMark kNotWritten = -1;
inline constexpr WriteMark kFromFile = 0;  ///< read, not written: always stands
