#include "sale/LineRow.h"

#include "base/NumberText.h"
#include "checkout/SaleState.h"
#include "saleslib/ClsStock.h"

BillRow lineRow(Connection& connection, const ClsSellItem& line, std::size_t position) {
  ClsStock stock;
  stock.Init(connection, line.SpCode());
  BillRow row;
  row.cells = {std::to_string(position),
               line.EntryCode(),
               line.SpName(),
               twoDecimals(line.Price()),
               generalNumber(line.Quantity()),
               generalNumber(line.Discount()),
               twoDecimals(line.Money()),
               generalNumber(roundedQuantity(stock.StockQty() + 1)),
               line.Origin(),
               line.Unit(),
               line.SpCode()};
  return row;
}
