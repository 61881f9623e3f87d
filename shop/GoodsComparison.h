#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "shop/GoodsPreview.h"
#include "shop/GoodsRow.h"
#include "shop/Table.h"

class Connection;

/// What one row of a sheet writes: whole rows of the tables, in the order of their columns.
struct GoodsToWrite {
  using TableRow = std::vector<Value>;
  std::vector<TableRow> master;    ///< of spda, at most one
  std::vector<TableRow> barcodes;  ///< of tmda
  std::vector<TableRow> stock;     ///< of stock, at most one
  std::string category;
};

/// Compares a sheet's rows with what the shop has, one after the other.
///
/// An article without an item code is the one that has its barcode, or else gets the barcode as its
/// code; where the sheet has no column of barcodes, the article keeps its own. Fields that the
/// sheet does not give stay as they are. The first row of an item code writes the article and its
/// stock, further ones add barcodes to it; the barcode of a case changes nothing but itself.
class GoodsComparison {
 public:
  explicit GoodsComparison(Connection& connection);

  /// Counts the row in `preview`; gives what it writes, or nothing when it changes nothing or is
  /// refused.
  std::optional<GoodsToWrite> compare(const GoodsRow& row, std::int64_t line,
                                      GoodsPreview& preview);

 private:
  using TableRow = GoodsToWrite::TableRow;
  using Fields = GoodsRow::Fields;
  struct Outcome;
  struct KnownTable : Table {
    explicit KnownTable(const char* table);
    std::string query;                              ///< for the row of a key
    std::vector<std::optional<GoodsField>> fields;  ///< what its columns hold
  };

  std::string resolve(const GoodsRow& row);
  std::string resolveItem();
  std::string barcodeKey(const std::string& barcode) const;
  bool isFirst(const std::string& key);
  std::optional<TableRow> stored(const KnownTable& table, const TableRow& key) const;
  std::string known(GoodsField field) const;
  std::optional<Value> knownValue(GoodsField field) const;
  void compareTables(const GoodsRow& row, Outcome& outcome);
  void compareMaster(const GoodsRow& row, bool isWritten, Outcome& outcome);
  void compareBarcode(const GoodsRow& row, const std::optional<TableRow>& before, Outcome& outcome);
  void compareCase(const GoodsRow& row, Outcome& outcome);
  void compareStock(const GoodsRow& row, Outcome& outcome);
  void merge(const KnownTable& table, const Fields& given, const std::optional<TableRow>& before,
             std::vector<TableRow>& writes, Outcome& outcome);
  void count(const Outcome& outcome, std::int64_t line, GoodsPreview& preview) const;

  Connection& connection_;
  KnownTable master_, barcodes_, stock_;
  std::unordered_set<std::size_t> seen_;  ///< hashes of the sheet's items and their barcodes
  std::string itemCode_, barcode_;        ///< of the row
  Fields article_;                        ///< what the row's article has, as far as it is known
};
