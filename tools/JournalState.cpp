#include "tools/JournalState.h"

#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Words.h"
#include "saleslib/JournalEntry.h"
#include "saleslib/JournalKinds.h"
#include "shop/Refusal.h"

namespace {

bool isKind(const JournalEntry& entry, EntryKind kind) {
  return entry.kind == entryKind(kind).key;
}

std::string textOf(const nlohmann::json& record, const char* name) {
  return record.contains(name) ? record.at(name).get<std::string>() : std::string();
}

template <class Value>
Value required(const std::optional<Value>& value, const std::string& text) {
  if (!value) throw Refusal(Words::tr("不是数字：%1", text));
  return *value;
}

}  // namespace

Currency figureOf(const nlohmann::json& record, const char* name) {
  const std::string text = textOf(record, name);
  return text.empty() ? Currency() : required(Currency::parse(text), text);
}

double quantityOf(const nlohmann::json& record, const char* name, double otherwise) {
  const std::string text = textOf(record, name);
  return text.empty() ? otherwise : required(parseNumber(text), text);
}

std::int64_t numberOf(const nlohmann::json& record, const char* name) {
  return static_cast<std::int64_t>(quantityOf(record, name));
}

void JournalState::take(const JournalEntry& entry, const Json& body) {
  if (isKind(entry, EntryKind::kJournalBegun)) return begin(body);
  if (isKind(entry, EntryKind::kJournalEnded)) isBegun = false;
  takeRows(entry, body);
  takeBill(entry, body);
  takeMoney(body);
}

void JournalState::begin(const Json& body) {
  *this = JournalState();
  isBegun = true;
  last = body.at("last").get<std::map<std::string, std::int64_t>>();
  open = begunOpen = body.at("open").get<std::set<std::int64_t>>();
}

void JournalState::takeRows(const JournalEntry& entry, const Json& body) {
  const auto each = [&body](const char* many, const char* one, const auto& taker) {
    if (body.contains(one)) taker(body.at(one));
    if (body.contains(many)) {
      for (const Json& record : body.at(many)) taker(record);
    }
  };
  each("members", "member", [this](const Json& record) { setMember(record); });
  each("operators", "operator",
       [this](const Json& record) { operators[numberOf(record, "id")] = record; });
  each("returns", "return",
       [this](const Json& record) { returns[numberOf(record, "id")] = record; });
  each("top_ups", "top_up",
       [this](const Json& record) { topUps[numberOf(record, "id")] = record; });
  each("shifts", "shift", [this](const Json& record) { shifts[numberOf(record, "id")] = record; });
  if (isKind(entry, EntryKind::kOperatorRemoved)) operators.erase(std::stoll(entry.touches));
  if (body.contains("stock")) {
    for (const auto& [item, quantity] : body.at("stock").items())
      stock[asciiLower(item)] = required(parseNumber(quantity.get<std::string>()), item);
  }
  if (body.contains("parameters")) {
    for (const auto& [name, value] : body.at("parameters").items())
      value.is_null() ? static_cast<void>(parameters.erase(name))
                      : static_cast<void>(parameters[name] = value);
  }
  if (body.contains("bills")) {
    const Json& some = body.at("bills");
    older.push_back({some.at("first"), some.at("last"), some.at("count"), some.at("mark")});
  }
}

// Lines leave the stock for the journal when their bill is settled, and come back by a return.
void JournalState::takeBill(const JournalEntry& entry, const Json& body) {
  if (isKind(entry, EntryKind::kBillOpened)) open.insert(std::stoll(entry.touches));
  if (isKind(entry, EntryKind::kBillCancelled) || isKind(entry, EntryKind::kBillReleased))
    open.erase(std::stoll(entry.touches));
  if (isKind(entry, EntryKind::kGoodsReturned)) {
    const Json& back = body.at("return");
    move(body.at("item"), quantityOf(back, "quantity") * quantityOf(back, "ratio", 0));
  }
  if (!body.contains("bill")) return;
  const std::int64_t bill = numberOf(body.at("bill"), "id");
  if (isKind(entry, EntryKind::kBillRedated) && open.contains(bill)) return;
  if (body.contains("before") && !bills.contains(bill)) before.emplace(bill, body.at("before"));
  bills[bill] = entry.seq;
  open.erase(bill);
  if (!body.contains("before")) {
    for (const Json& line : body.at("lines"))
      move(line.at("bm"), -(quantityOf(line, "amount") * quantityOf(line, "ratio", 0)));
  }
}

void JournalState::takeMoney(const Json& body) {
  if (body.contains("credit")) {
    const Json& credit = body.at("credit");
    Account& account = accounts[credit.at("member").get<std::int64_t>()];
    account.spent += figureOf(credit, "spent");
    account.points += credit.at("points").get<std::int64_t>();
  }
  if (body.contains("card")) {
    const Json& card = body.at("card");
    const auto member = memberOfCard_.find(asciiLower(card.at("number").get<std::string>()));
    if (member != memberOfCard_.end()) accounts[member->second].card += figureOf(card, "by");
  }
}

void JournalState::setMember(Json record) {
  const std::int64_t id = numberOf(record, "id");
  accounts[id] = {figureOf(record, "card"), figureOf(record, "total_spent"),
                  numberOf(record, "points")};
  for (const char* name : {"card", "total_spent", "points"}) record.erase(name);
  memberOfCard_[asciiLower(textOf(record, "bh"))] = id;
  members[id] = std::move(record);
}

void JournalState::move(const std::string& item, double quantity) {
  double& inStock = stock[asciiLower(item)];
  inStock = roundedQuantity(inStock + roundedQuantity(quantity));
}

bool JournalState::isOlder(std::int64_t bill) const {
  const auto given = last.find("sell");
  return given != last.end() && bill <= given->second && !begunOpen.contains(bill);
}
