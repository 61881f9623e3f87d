#include "saleslib/ReturnedLine.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "saleslib/ClsSell.h"
#include "saleslib/Errands.h"
#include "saleslib/Journal.h"
#include "saleslib/JournalRecords.h"
#include "store/Connection.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

using Json = nlohmann::json;

/// What the entry tells of the bill; nothing of one that this file does not have.
Json lowered(Connection& connection, const ReturnElsewhere& returned) {
  ClsSell bill;
  Json body = Json::object();
  if (!bill.Open(connection, static_cast<std::int32_t>(returned.bill), 0) || bill.State() != 1)
    return body;
  const std::string before = billMark(connection, returned.bill);
  bill.LoadLines();
  const auto& lines = bill.Items();
  const auto line = std::find_if(lines.begin(), lines.end(),
                                 [&](const auto& each) { return each->Id() == returned.line; });
  if (line == lines.end()) return body;
  lowerLine(bill, **line, std::min(returned.quantity, (*line)->Quantity()));
  if (!bill.Save()) throw StoreError(bill.ErrText());
  body = billRecord(connection, returned.bill);
  body["before"] = before;
  return body;
}

}  // namespace

void lowerLine(ClsSell& bill, ClsSellItem& line, double quantity) {
  const Currency rounding = bill.Amount() - bill.GoodsAmount();
  line.setQuantity(roundedQuantity(line.Quantity() - quantity));
  ensure(line.Quantity() >= 0, "no more comes back than the line holds");
  bill.Recalculate();
  if (!bill.GoodsAmount().isZero()) bill.setAmount(bill.GoodsAmount() + rounding);
}

void followReturn(Connection& connection, const ReturnElsewhere& returned) {
  Transaction following(connection);
  if (!beginErrand(connection, std::to_string(returned.till) + ":" + returned.key)) return;
  Json body = lowered(connection, returned);
  body["elsewhere"] = {{"key", returned.key},
                       {"till", std::to_string(returned.till)},
                       {"line", std::to_string(returned.line)},
                       {"quantity", generalNumber(returned.quantity)}};
  Journal(connection).note(EntryKind::kReturnedElsewhere, returned.bill, [&] { return body; });
  following.commit();
}
