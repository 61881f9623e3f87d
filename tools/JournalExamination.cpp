#include <nlohmann/json.hpp>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Words.h"
#include "saleslib/JournalEntry.h"
#include "saleslib/JournalRecords.h"
#include "store/Connection.h"
#include "tools/Examination.h"
#include "tools/JournalChain.h"
#include "tools/JournalState.h"
#include "tools/StockExamination.h"

namespace {

using Json = nlohmann::json;

// As an entry holds it: what no JSON can hold was replaced.
Json asNoted(const Json& record) {
  return Json::parse(record.dump(-1, ' ', false, Json::error_handler_t::replace));
}

/// Where two records differ, the first three places.
std::string difference(const Json& noted, const Json& found) {
  constexpr std::size_t kMostShown = 3;
  std::string text;
  const Json changes = Json::diff(noted, found);
  for (std::size_t index = 0; index < changes.size() && index < kMostShown; ++index) {
    const std::string path = changes[index].at("path");
    const Json::json_pointer place(path);
    const auto shown = [&place](const Json& record) {
      return record.contains(place) ? record.at(place).dump() : Words::tr("没有");
    };
    if (index > 0) text += Words::tr("；");
    text += Words::tr("%1 日志记的是 %2，账上是 %3", path.substr(1), shown(noted), shown(found));
  }
  return text;
}

Json recordIn(const Json& body) {
  return {{"bill", body.at("bill")}, {"lines", body.at("lines")}};
}

/// Holds the books against what the journal's entries say that they are.
class JournalExamination {
 public:
  explicit JournalExamination(const Examination& books) : books_(books) {}
  void run();

 private:
  void take(const JournalEntry& entry);
  void examineChange(const JournalEntry& entry, const Json& body);
  void examineSwitch() const;
  void examineBills() const;
  void examineBill(std::int64_t number, std::int64_t seq) const;
  void examineOlder() const;
  void examineOpen() const;
  void examineMembers() const;
  void examineAccount(std::int64_t member, const Json& record) const;
  void examineParameters() const;
  using Record = Json (*)(Connection&, std::int64_t);
  void examineRows(const std::map<std::int64_t, Json>& noted, const char* query, Record record,
                   const std::string& what) const;
  Json bodyOf(std::int64_t seq) const;

  const Examination& books_;
  JournalState state_;
  bool isEmpty_ = true;
};

void JournalExamination::run() {
  walkJournal(books_.connection, books_.fault, [this](const JournalEntry& entry) { take(entry); });
  examineSwitch();
  if (!state_.isBegun) return;
  examineBills();
  examineOlder();
  examineOpen();
  examineNotedStock(books_, state_);
  examineMembers();
  examineParameters();
  examineRows(state_.operators, "select id from operators order by id", operatorRecord,
              Words::tr("操作员"));
  examineRows(state_.returns, "select id from un_sell order by id", returnRecord,
              Words::tr("退货"));
  examineRows(state_.topUps, "select id from cardStored order by id", topUpRecord,
              Words::tr("充值"));
  examineRows(state_.shifts, "select id from shift order by id", shiftRecord, Words::tr("班次"));
}

void JournalExamination::take(const JournalEntry& entry) {
  isEmpty_ = false;
  try {
    const Json body = Json::parse(entry.body);
    examineChange(entry, body);
    state_.take(entry, body);
  } catch (const std::exception& unreadable) {
    books_.fault(Words::tr("日志第 %1 条读不出来：%2", entry.seq, unreadable.what()));
  }
}

// A bill that the till changes later is noted as it was before, too: what was done to it from
// outside meanwhile is not taken for its own.
void JournalExamination::examineChange(const JournalEntry& entry, const Json& body) {
  if (!body.contains("before") || !body.contains("bill")) return;
  const auto known = state_.bills.find(numberOf(body.at("bill"), "id"));
  if (known == state_.bills.end()) return;
  const std::string mark = textMark(recordIn(bodyOf(known->second)).dump());
  if (mark == body.at("before").get<std::string>()) return;
  books_.fault(Words::tr("单据 %1 在日志第 %2 条和第 %3 条之间，在本程序以外改过", known->first,
                         known->second, entry.seq));
}

void JournalExamination::examineSwitch() const {
  Rows set = books_.connection.query("select value from sys_param where name = 'Journal'");
  const bool isWanted = set.next() && set.text("value") == "1";
  if (isWanted && isEmpty_)
    books_.fault(Words::tr("店铺参数 Journal 是 1，日志却是空的：被删掉了"));
  if (isWanted && !isEmpty_ && !state_.isBegun)
    books_.fault(Words::tr("店铺参数 Journal 是 1，日志却停用了"));
}

Json JournalExamination::bodyOf(std::int64_t seq) const {
  Rows row = books_.connection.query("select body from fact where seq = ?", seq);
  return row.next() ? Json::parse(row.text("body")) : Json();
}

void JournalExamination::examineBills() const {
  auto noted = state_.bills.begin();
  const auto missing = [&] {
    books_.fault(Words::tr("单据 %1 在日志第 %2 条结了账，账上却没有这张已结的单据了", noted->first,
                           noted->second));
    ++noted;
  };
  Rows rows = books_.connection.query("select id from sell where state = 1 order by id");
  while (rows.next()) {
    const std::int64_t number = rows.whole("id").value_or(0);
    while (noted != state_.bills.end() && noted->first < number) missing();
    if (noted != state_.bills.end() && noted->first == number) {
      examineBill(number, noted->second);
      ++noted;
    } else if (!state_.isOlder(number)) {
      books_.fault(Words::tr("单据 %1 不在日志里：是在本程序以外加进去的", number));
    }
  }
  while (noted != state_.bills.end()) missing();
}

void JournalExamination::examineBill(std::int64_t number, std::int64_t seq) const {
  const Json noted = recordIn(bodyOf(seq)), found = billRecord(books_.connection, number);
  if (noted == found || noted == asNoted(found)) return;
  books_.fault(
      Words::tr("单据 %1 与日志第 %2 条不符：%3", number, seq, difference(noted, asNoted(found))));
}

void JournalExamination::examineOlder() const {
  for (const JournalState::OlderBills& some : state_.older) {
    std::string marks;
    std::int64_t count = 0;
    Rows rows = books_.connection.query(
        "select id from sell where state = 1 and id between ? and ? order by id", some.first,
        some.last);
    while (rows.next()) {
      const std::int64_t number = rows.whole("id").value_or(0);
      if (!state_.isOlder(number)) continue;
      const auto before = state_.before.find(number);
      marks += before == state_.before.end() ? billMark(books_.connection, number) : before->second;
      ++count;
    }
    if (count == some.count && textMark(marks) == some.mark) continue;
    books_.fault(
        Words::tr("日志开始以前的单据 %1 到 %2 里有改过的：那时有 %3 张已结的，现在有 %4 张",
                  some.first, some.last, some.count, count));
  }
}

void JournalExamination::examineOpen() const {
  std::set<std::int64_t> gone = state_.open;
  Rows rows = books_.connection.query("select id from sell where state = 0 order by id");
  while (rows.next()) {
    const std::int64_t number = rows.whole("id").value_or(0);
    if (gone.erase(number) > 0) continue;
    books_.fault(Words::tr("未结的单据 %1 没有开单的日志", number));
  }
  for (const std::int64_t number : gone) {
    books_.fault(Words::tr("单据 %1 开了单，日志里没有结账也没有撤消，账上却没有了", number));
  }
}

void JournalExamination::examineMembers() const {
  Rows rows = books_.connection.query("select id from member order by id");
  auto noted = state_.members;
  while (rows.next()) {
    const std::int64_t id = rows.whole("id").value_or(0);
    Json record = asNoted(memberRecord(books_.connection, id));
    const std::string name = Words::tr("会员 %1", record.value("bh", std::string()));
    const auto known = noted.find(id);
    if (known == noted.end()) {
      books_.fault(Words::tr("%1 不在日志里：是在本程序以外加进去的", name));
      continue;
    }
    examineAccount(id, record);
    for (const char* sum : {"card", "total_spent", "points"}) record.erase(sum);
    if (record != known->second) {
      books_.fault(Words::tr("%1 的资料与日志不符：%2", name, difference(known->second, record)));
    }
    noted.erase(known);
  }
  for (const auto& [id, record] : noted) {
    books_.fault(Words::tr("会员 %1 在日志里，账上却没有了", record.value("bh", std::string())));
  }
}

void JournalExamination::examineAccount(std::int64_t member, const Json& record) const {
  const JournalState::Account& noted = state_.accounts.at(member);
  const std::string name = record.value("bh", std::string());
  const auto compare = [&](const std::string& what, const std::string& found,
                           const std::string& expected) {
    if (found != expected) books_.fault(Words::tr("%1是 %2，按日志应是 %3", what, found, expected));
  };
  const auto text = [&record](const char* column) {
    return record.value(column, std::string("0"));
  };
  compare(Words::tr("储值卡 %1 的余额", name), text("card"), generalNumber(noted.card));
  compare(Words::tr("会员 %1 的累计消费", name), text("total_spent"), generalNumber(noted.spent));
  compare(Words::tr("会员 %1 的积分", name), text("points"), std::to_string(noted.points));
}

void JournalExamination::examineRows(const std::map<std::int64_t, Json>& noted, const char* query,
                                     Record record, const std::string& what) const {
  std::map<std::int64_t, Json> expected = noted;
  Rows rows = books_.connection.query(query);
  while (rows.next()) {
    const std::int64_t id = rows.whole("id").value_or(0);
    const std::string name = what + " " + std::to_string(id);
    const auto known = expected.find(id);
    if (known == expected.end()) {
      books_.fault(Words::tr("%1 不在日志里：是在本程序以外加进去的", name));
      continue;
    }
    const Json found = asNoted(record(books_.connection, id));
    if (found != known->second) {
      books_.fault(Words::tr("%1 与日志不符：%2", name, difference(known->second, found)));
    }
    expected.erase(known);
  }
  for (const auto& [id, gone] : expected) {
    books_.fault(Words::tr("%1 %2 在日志里，账上却没有了", what, id));
  }
}

void JournalExamination::examineParameters() const {
  std::map<std::string, std::string> expected = state_.parameters;
  Rows rows = books_.connection.query("select name, value from sys_param");
  while (rows.next()) {
    const std::string name = rows.text("name"), value = rows.text("value");
    const auto known = expected.find(name);
    if (known == expected.end() || known->second != value) {
      books_.fault(
          known == expected.end()
              ? Words::tr("店铺参数 %1 是“%2”，按日志没有设过", name, value)
              : Words::tr("店铺参数 %1 是“%2”，按日志应是“%3”", name, value, known->second));
    }
    if (known != expected.end()) expected.erase(known);
  }
  for (const auto& [name, value] : expected) {
    books_.fault(Words::tr("店铺参数 %1 按日志应是“%2”，现在没有了", name, value));
  }
}

}  // namespace

void examineJournal(const Examination& books) {
  JournalExamination(books).run();
}
