#include "saleslib/BillOfRecord.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "base/Words.h"
#include "saleslib/ClsSell.h"
#include "store/Row.h"
#include "store/StoreError.h"

namespace {

using Json = nlohmann::json;

/// A record's texts as a row's columns.
class RecordRow : public Row {
 public:
  explicit RecordRow(Json record) : record_(std::move(record)) {}

 protected:
  Value field(std::string_view column) const override {
    const auto found = record_.find(std::string(column));
    return found == record_.end() ? Value() : toValue(found->get<std::string>());
  }

 private:
  Json record_;
};

std::shared_ptr<ClsSell> read(Connection& connection, const Json& record, bool isSettled) {
  Json row = record.at("bill");
  row["state"] = isSettled ? "1" : "0";
  std::shared_ptr<ClsSell> bill = ClsSell::fromRow(connection, RecordRow(row));
  const Currency due = bill->Amount();
  for (Json line : record.at("lines")) {
    line["sellId"] = row.at("id");
    bill->AddItem(std::make_shared<ClsSellItem>(ClsSellItem::fromRow(connection, RecordRow(line))));
  }
  bill->Recalculate();
  if (isSettled) bill->setAmount(due);
  return bill;
}

}  // namespace

std::shared_ptr<ClsSell> billOfRecord(Connection& connection, const Json& record, bool isSettled) {
  try {
    return read(connection, record, isSettled);
  } catch (const Json::exception& unreadable) {
    throw StoreError(Words::tr("服务器给的单据读不出来：%1", unreadable.what()));
  }
}
