#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/// What a goods sheet would do to the shop. The lists hold their first entries only, the counts
/// count all rows.
struct GoodsPreview {
  static constexpr std::size_t kMostListed = 1'000;

  /// A row that adds an article or changes one.
  struct Article {
    std::int64_t line = 0;
    std::string itemCode, barcode, name;
    std::string oldPrice;  ///< as it is shown; empty when the price stays
    std::string newPrice;
    std::vector<std::string> otherFields;  ///< headings of what else changes
  };
  /// A row with what is wrong with it.
  struct Complaint {
    std::int64_t line = 0;
    std::string reason;
  };

  std::int64_t addedCount = 0, changedCount = 0, unchangedCount = 0, refusedCount = 0;
  std::vector<Article> added, changed;
  std::vector<Complaint> refused;
  std::int64_t doubtCount = 0;
  std::vector<Complaint> doubts;  ///< rows that are taken and yet likely wrong

  void refuse(std::int64_t line, std::string reason) {
    ++refusedCount;
    if (refused.size() < kMostListed) refused.push_back({line, std::move(reason)});
  }
  /// One refused row keeps the whole sheet out.
  bool mayBeWritten() const { return refusedCount == 0; }
  bool changesNothing() const { return addedCount + changedCount + refusedCount == 0; }
};
