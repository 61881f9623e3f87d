#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "saleslib/ClsMember.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsSellItem.h"

/// A row of the bill's list as it is shown: texts only, in UTF-8.
struct BillRow {
  enum Column {
    kNumber,    ///< 序号; editable: code entry
    kCode,      ///< 条码货号
    kName,      ///< 商品名称
    kPrice,     ///< 单价, "0.00"
    kQuantity,  ///< 数量; editable
    kDiscount,  ///< 折扣; editable
    kMoney,     ///< 金额, "0.00"
    kStock,     ///< 现有库存
    kOrigin,    ///< 产地
    kUnit,      ///< 单位
    kSpCode,    ///< 编码
    kColumns
  };
  std::array<std::string, kColumns> cells;
  std::int32_t tag = 0;  ///< the line's row id once it is committed, else 0
};

/// What the sale screen is in the middle of: one set per open screen, shared by everything that
/// works on it. Every row above the current line's row is a committed line of curBill; the current
/// line's row, if any, holds curLine; the last row is the empty entry row.
struct SaleState {
  std::shared_ptr<ClsSell> curBill;                 ///< the open bill with its committed lines
  std::shared_ptr<ClsSell> lastBill;                ///< the bill settled before, or none
  std::shared_ptr<ClsSellItem> curLine;             ///< entered last, not yet committed, or none
  std::shared_ptr<ClsMember> curMember;             ///< attached to the open bill, or none
  std::vector<std::shared_ptr<ClsSell>> heldBills;  ///< suspended, in the order of suspension

  std::vector<BillRow> rows;
  int selected = -1;        ///< index of the selected row
  int editCol = 1;          ///< what the editor is on: 1 code entry, 2 quantity, 3 discount
  bool onEntryRow = true;   ///< the entry row is selected, not the current line's row
  bool clearOnKey = false;  ///< the next key press first empties the input line
  bool menuIdle = true;     ///< the function menu is not open

  std::int64_t origTotal = 0;  ///< original-price figure of the status line

  /// The column that the editor is on.
  BillRow::Column editColumn() const;
  /// Adds an empty row at the end and selects it; the editor goes to code entry.
  void AddEntryRow();
  /// No rows at all.
  void clearRows();
};
