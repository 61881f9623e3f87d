#include "saleslib/ShopLink.h"

#include <algorithm>

#include "base/Failure.h"
#include "base/Words.h"
#include "saleslib/CardPassword.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/Journal.h"
#include "store/Connection.h"
#include "store/RowNumbers.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

// Receipts of bills that never reached the server are in customers' hands: their numbers are not
// given out again. More than a till sells between two copies of its file.
constexpr std::int64_t kPerhapsGivenOut = 1000;

constexpr const char* kBills = "sell";

void numberBillsBehind(Connection& connection, int till, std::int64_t highestBill) {
  const std::int64_t known = std::max(highestBill, till * kNumbersPerTill);
  const std::int64_t unknown = highestBill > 0 ? kPerhapsGivenOut : 0;
  numberRowsBehind(connection, kBills, known + unknown);
}

}  // namespace

std::optional<ShopLink> shopLink(Connection& connection) {
  Rows row = connection.query("select * from link");
  if (!row.next()) return std::nullopt;
  return ShopLink{.till = static_cast<int>(row.whole("till").value_or(0)),
                  .epoch = static_cast<int>(row.whole("epoch").value_or(0)),
                  .host = row.text("host"),
                  .port = static_cast<int>(row.whole("port").value_or(0)),
                  .database = row.text("database"),
                  .password = row.text("password"),
                  .authority = row.text("authority")};
}

// The journal's first entry tells the till's number, so the link comes before it.
void joinShop(Connection& connection, const ShopLink& link, std::int64_t highestBill) {
  ensure(link.till > 0 && link.till <= kMostTills, "a till's number fits into those of its bills");
  Transaction joining(connection);
  connection.run("delete from link");
  connection.run(
      "insert into link (one, till, epoch, host, port, database, password, authority, contact)"
      " values (1, ?, ?, ?, ?, ?, ?, ?, ?)",
      link.till, link.epoch, link.host, link.port, link.database, link.password, link.authority,
      connection.user().clock());
  numberBillsBehind(connection, link.till, highestBill);
  hashCardPasswords(connection);
  ClsSysParam parameters;
  parameters.Conn(connection);
  std::string refused = Journal(connection).isOn() ? "" : parameters.set("Journal", "1");
  if (refused.empty() && parameters.GoodsImport()) refused = parameters.set("GoodsImport", "0");
  if (!refused.empty()) throw StoreError(refused);
  joining.commit();
}

void moveServer(Connection& connection, const std::string& host) {
  Transaction moving(connection);
  if (connection.run("update link set host = ?", host) == 0)
    throw StoreError(Words::tr("这台收银机还没有加入店铺，请写上加入码。"));
  moving.commit();
}

std::optional<DateTime> lastContact(Connection& connection) {
  Rows row = connection.query("select contact from link");
  return row.next() ? row.dateTime("contact") : std::nullopt;
}

void noteContact(Connection& connection, const DateTime& now) {
  const std::optional<DateTime> before = lastContact(connection);
  const std::int64_t since = before ? secondsBetween(*before, now) : -1;
  if (since >= 0 && since < std::chrono::seconds(kBetweenContacts).count()) return;
  Transaction noting(connection);
  connection.run("update link set contact = ?", now);
  noting.commit();
}

void beginEpoch(Connection& connection, int epoch, std::int64_t highestBill) {
  Transaction beginning(connection);
  const std::optional<ShopLink> link = shopLink(connection);
  ensure(link.has_value(), "only a shop's till has epochs");
  connection.run("update link set epoch = ?", epoch);
  numberBillsBehind(connection, link->till, highestBill);
  beginning.commit();
}

void skipUnknownNumbers(Connection& connection) {
  const std::optional<ShopLink> link = shopLink(connection);
  if (!link) return;
  Transaction skipping(connection);
  Rows row = connection.query("select max(id) as id from sell");
  const std::int64_t known = row.next() ? row.whole("id").value_or(0) : 0;
  numberBillsBehind(connection, link->till, std::max<std::int64_t>(known, 1));
  skipping.commit();
}
