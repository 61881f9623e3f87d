#include "sync/ShopCalls.h"

#include <nlohmann/json.hpp>

#include "base/NumberText.h"
#include "base/Version.h"

namespace {

using Milliseconds = ServerLine::Milliseconds;

// A slow line needs a second for so many bytes.
constexpr std::size_t kBytesPerSecond = 32'768;

std::int64_t number(const ServerAnswer::Row& row, std::size_t column) {
  return wholeAt(row, column).value_or(0);
}

// The hashes are hexadecimal digits: nothing in them needs quoting.
std::string arrayOf(const std::vector<Place>& places, std::string (*textOf)(const Place&)) {
  std::string array = "{";
  for (const Place& place : places) array += (array.size() > 1 ? "," : "") + textOf(place);
  return array + "}";
}

constexpr auto kDownPatience = 4 * ServerLine::kPatience;

using Json = nlohmann::json;

void takeRows(ShopCalls::Changes& changes, const std::string& text, std::size_t most) {
  for (const Json& row : Json::parse(text)) {
    changes.rows.push_back(
        {row.at(0), row.at(1), row.at(2), row.at(3).is_null() ? std::string() : row.at(3).dump()});
  }
  changes.isLast = changes.rows.size() < most;
}

}  // namespace

ShopCalls::Standing ShopCalls::standing(const ServerAnswer& answer) {
  Standing standing{.kind = answer.kind, .fault = answer.text, .state = answer.state};
  if (!answer.isDone()) return standing;
  const ServerAnswer::Row& row = answer.rows.at(0);
  standing.epoch = static_cast<int>(number(row, 0));
  standing.place = {number(row, 1), row.at(2).value_or("")};
  return standing;
}

ShopCalls::Standing ShopCalls::hello(const Told& told) {
  return standing(line_.ask("select epoch, applied, hash from api.hello($1, $2, $3, $4)",
                            {till_, std::to_string(told.pending), std::to_string(told.clock),
                             std::string(tillVersion())}));
}

ShopCalls::Standing ShopCalls::put(int epoch, const std::string& before,
                                   const std::vector<JournalEntry>& entries, const Told& told) {
  const std::string text = entriesText(entries);
  const Milliseconds longer(1000 * (text.size() / kBytesPerSecond));
  return standing(
      line_.ask("select $2, applied, hash from api.put($1, $2::integer, $3, $4, $5, $6)",
                {till_, std::to_string(epoch), before, std::to_string(told.pending),
                 std::to_string(told.clock), text},
                ServerLine::kPatience + longer));
}

ShopCalls::Epoch ShopCalls::newEpoch(int epoch, const std::vector<Place>& own) {
  const ServerAnswer answer =
      line_.ask("select epoch, highest_bill from api.new_epoch($1, $2, $3, $4)",
                {till_, std::to_string(epoch),
                 arrayOf(own, [](const Place& place) { return std::to_string(place.seq); }),
                 arrayOf(own, [](const Place& place) { return place.hash; })},
                2 * ServerLine::kPatience);
  Epoch begun{.kind = answer.kind, .fault = answer.text, .state = answer.state};
  if (!answer.isDone()) return begun;
  begun.epoch = static_cast<int>(number(answer.rows.at(0), 0));
  begun.highestBill = number(answer.rows.at(0), 1);
  return begun;
}

ShopCalls::Changes ShopCalls::changes(const DownPlace& place, std::size_t most) {
  if (place.isWalking) return walk(place, most);
  const ServerAnswer answer =
      line_.ask("select tx, tbl, key, changes from api.changes($1, $2, $3, $4, $5, $6)",
                {till_, place.generation, place.tx, place.tbl, place.key, std::to_string(most)},
                kDownPatience);
  Changes changes{.kind = answer.kind, .fault = answer.text, .state = answer.state};
  if (!answer.isDone()) return changes;
  const ServerAnswer::Row& row = answer.rows.at(0);
  changes.next = {place.generation, row.at(0).value(), row.at(1).value(), row.at(2).value(), false};
  takeRows(changes, row.at(3).value(), most);
  return changes;
}

ShopCalls::Changes ShopCalls::walk(const DownPlace& place, std::size_t most) {
  const ServerAnswer answer =
      line_.ask("select generation, horizon, changes, whole from api.walk($1, $2, $3, $4, $5, $6)",
                {till_, place.generation, place.tx, place.tbl, place.key, std::to_string(most)},
                kDownPatience);
  Changes changes{.kind = answer.kind, .fault = answer.text, .state = answer.state};
  if (!answer.isDone()) return changes;
  const ServerAnswer::Row& row = answer.rows.at(0);
  takeRows(changes, row.at(2).value(), most);
  changes.whole = Json::parse(row.at(3).value()).get<std::vector<std::string>>();
  changes.next = {row.at(0).value(), row.at(1).value(), "", "", !changes.isLast};
  if (!changes.isLast) {
    changes.next.tbl = changes.rows.back().tbl;
    changes.next.key = changes.rows.back().key;
  }
  return changes;
}

CardAuthority::Answer ShopCalls::charge(const CardAuthority::Charge& charge,
                                        Milliseconds patience) {
  using Answer = CardAuthority::Answer;
  const ServerAnswer answer =
      line_.askWithin(patience, "select outcome, balance from api.charge($1, $2, $3, $4)",
                      {till_, charge.key, charge.card, generalNumber(charge.amount)});
  if (!answer.isDone()) return {};
  const std::string outcome = answer.rows.at(0).at(0).value_or("");
  const std::string balance = answer.rows.at(0).at(1).value_or("");
  if (outcome == "done") return {Answer::kDone, Currency::parse(balance).value_or(Currency())};
  if (outcome == "too_little") return {Answer::kTooLittle};
  if (outcome == "unknown_card") return {Answer::kUnknownCard};
  return {};
}
