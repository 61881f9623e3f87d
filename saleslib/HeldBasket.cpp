#include "saleslib/HeldBasket.h"

#include <nlohmann/json.hpp>

#include "base/Words.h"
#include "saleslib/BillOfRecord.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsStock.h"
#include "saleslib/Errands.h"
#include "saleslib/Journal.h"
#include "saleslib/JournalRecords.h"
#include "store/Connection.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

using Json = nlohmann::json;

constexpr std::int16_t kMayGoNegative = 0;

Json basketOf(Connection& connection, std::int64_t bill) {
  Json basket = billRecord(connection, bill);
  Rows row = connection.query(
      "select o.name as cashier, m.bh as card from sell s left join operators o on o.id ="
      " operator_id left join member m on m.id = member_id where s.id = ?",
      bill);
  if (!row.next()) throw StoreError(Words::tr("单据 %1 已不在数据文件中！", bill));
  basket["cashier"] = row.text("cashier");
  basket["member"] = row.text("card");
  return basket;
}

std::string memberOf(const std::string& basket) {
  const Json record = Json::parse(basket, nullptr, false);
  const auto member = record.find("member");
  return member != record.end() && member->is_string() ? member->get<std::string>() : "";
}

void moveStock(Connection& connection, const ClsSellItem& line, double quantity) {
  ClsStock stock;
  stock.Init(connection, line.SpCode());
  const StockOutcome moved = stock.Move(quantity, kMayGoNegative);
  if (!moved.done()) throw StoreError(moved.refusal());
}

/// A held bill without lines, of whoever held it until somebody takes it up.
std::int64_t newBill(Connection& connection, const ClsSell& basket, const std::string& memberCard) {
  return connection
      .insert(
          "insert into sell (sell_time, operator_id, member_id, held) values (?, ?,"
          " coalesce((select id from member where bh = ? and ? <> ''), 0), 1)",
          basket.SellTime(), basket.OperatorId(), memberCard, memberCard)
      .value();
}

void store(Connection& connection, std::int64_t number, const ClsSell& basket) {
  ClsSell bill;
  if (!bill.Open(connection, static_cast<std::int32_t>(number), 0))
    throw StoreError(Words::tr("单据 %1 已不在数据文件中！", number));
  for (const auto& each : basket.Items()) {
    moveStock(connection, *each, each->StockQuantity());
    auto line = std::make_shared<ClsSellItem>();
    line->Init(connection, bill.BillNo());
    line->setSpCode(each->SpCode());
    line->setSpName(each->SpName());
    line->setUnit(each->Unit());
    line->setQuantity(each->Quantity());
    line->setPrice(each->Price());
    line->setDiscount(each->Discount());
    line->setCost(each->Cost());
    line->setCategory(each->Category());
    line->setEntryCode(each->EntryCode());
    line->setRatio(each->Ratio());
    line->setOrigin(each->Origin());
    line->Save();
    bill.AddItem(std::move(line));
  }
  if (!bill.Save()) throw StoreError(bill.ErrText());
}

}  // namespace

std::vector<std::int64_t> heldNumbers(Connection& connection) {
  std::vector<std::int64_t> numbers;
  Rows rows = connection.query("select id from sell where held = 1 order by id");
  while (rows.next()) numbers.push_back(rows.whole("id").value_or(0));
  return numbers;
}

std::string heldBaskets(Connection& connection) {
  Json all = Json::object();
  for (const std::int64_t number : heldNumbers(connection))
    all[std::to_string(number)] = basketOf(connection, number);
  return all.dump(-1, ' ', false, Json::error_handler_t::replace);
}

bool releaseHeld(Connection& connection, std::int64_t number, const std::string& key, int toTill) {
  Transaction releasing(connection);
  if (!connection.query("select 1 from sell where id = ? and held = 1", number).next())
    return false;
  Json basket = basketOf(connection, number);
  ClsSell bill;
  static_cast<void>(bill.Open(connection, static_cast<std::int32_t>(number), 0));
  bill.LoadLines();
  for (const auto& line : bill.Items()) moveStock(connection, *line, -line->StockQuantity());
  Journal(connection).note(EntryKind::kBillReleased, number, [&] {
    return Json{{"key", key}, {"to", std::to_string(toTill)}, {"basket", std::move(basket)}};
  });
  bill.Void();
  releasing.commit();
  return true;
}

std::shared_ptr<ClsSell> heldBill(Connection& connection, const std::string& basket) {
  return billOfRecord(connection, Json::parse(basket, nullptr, false), false);
}

namespace {

std::string errandOf(const std::string& key) {
  return "held:" + key;
}

std::int64_t receive(Connection& connection, const std::string& key, const std::string& basket) {
  Transaction receiving(connection);
  const std::string errand = errandOf(key);
  if (!beginErrand(connection, errand)) return errandResult(connection, errand);
  const std::shared_ptr<ClsSell> given = heldBill(connection, basket);
  const std::int64_t number = newBill(connection, *given, memberOf(basket));
  const Journal journal(connection);
  journal.note(EntryKind::kBillOpened, number, [&] {
    return Json{{"cashier", given->OperatorId()}};
  });
  store(connection, number, *given);
  journal.note(EntryKind::kBillReceived, number, [&] {
    return Json{{"key", key}, {"from", std::to_string(given->BillNo())}};
  });
  endErrand(connection, errand, number);
  receiving.commit();
  return number;
}

void refuse(Connection& connection, const std::string& key, const std::string& why) {
  Transaction refusing(connection);
  if (!beginErrand(connection, errandOf(key))) return;
  Journal(connection).note(EntryKind::kBillRefused, std::string(), {{"key", key}, {"reason", why}});
  refusing.commit();
}

}  // namespace

// What cannot be read today cannot be read tomorrow: asked for again and again, it would stand in
// the way of nothing but be a fault for ever.
std::int64_t receiveHeld(Connection& connection, const std::string& key,
                         const std::string& basket) {
  try {
    return receive(connection, key, basket);
  } catch (const StoreBusy&) {
    throw;
  } catch (const StoreError& failure) {
    refuse(connection, key, failure.what());
    return 0;
  }
}
