#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <unordered_map>

/// A set of row numbers that takes a bit for each where they lie close together, as those of a
/// table do: a million rows need some hundred kilobytes.
class RowNumbers {
 public:
  /// False when it holds the number already.
  bool insert(std::int64_t number) {
    auto bit = pieces_[number >> kPieceBits][static_cast<std::size_t>(number) % kPiece];
    if (bit) return false;
    bit = true;
    return true;
  }

 private:
  static constexpr int kPieceBits = 12;
  static constexpr std::size_t kPiece = std::size_t{1} << kPieceBits;
  std::unordered_map<std::int64_t, std::bitset<kPiece>> pieces_;
};
