#pragma once

#include <QString>
#include <array>
#include <span>
#include <string>

class ClsSellItem;

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
  const ClsSellItem* line = nullptr;  ///< what it shows; none in the entry row
};

/// All that the sale screen shows, but for the clock. The rows last until the sale changes.
struct SalePicture {
  std::span<const BillRow> rows;  ///< the last one is the entry row
  int row = 0;                    ///< the framed cell's; its row is highlighted
  BillRow::Column column = BillRow::kNumber;
  BillRow::Column lastColumn = BillRow::kCode;  ///< the frame goes up to this one
  QString input;                                ///< the input line's text
  bool inputIsGiven = true;  ///< by the sale, to be corrected or replaced; else it was typed
  QString title1;            ///< bill number and cashier
  QString title3;            ///< the previous bill
  QString status;            ///< status line `txtmoney`
  QString memberInfo;        ///< `lblViewMember`
};
