#include "sync/MasterRows.h"

#include <nlohmann/json.hpp>
#include <string_view>

#include "base/NumberText.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/Journal.h"
#include "saleslib/JournalRecords.h"
#include "saleslib/MasterTables.h"
#include "store/Connection.h"
#include "sync/OthersPart.h"

namespace {

using Json = nlohmann::json;

// No password has it: whoever has bills open is not taken away before they are cancelled.
constexpr const char* kNoHash = "!";

std::string mark(std::size_t place) {
  return "?" + std::to_string(place + 1);
}

std::string isRow(const MasterTable& table) {
  std::string text;
  for (std::size_t place = 0; place < table.keyColumns; ++place)
    text += (place == 0 ? "" : " and ") + table.columns[place] + " = " + mark(place);
  return text;
}

/// Changes a row that has other values.
std::string updateText(const MasterTable& table) {
  std::string set, differs;
  for (std::size_t place = 0; place < table.columns.size(); ++place) {
    const std::string& column = table.columns[place];
    set += (place == 0 ? "" : ", ") + column + " = " + mark(place);
    differs += (place == 0 ? "" : " or ") + column + " collate binary is not " + mark(place);
  }
  return "update " + std::string(table.name) + " set " + set + " where " + isRow(table) + " and (" +
         differs + ")";
}

std::string insertText(const MasterTable& table) {
  std::string names, values;
  for (std::size_t place = 0; place < table.columns.size(); ++place) {
    names += (place == 0 ? "" : ", ") + table.columns[place];
    values += (place == 0 ? "" : ", ") + mark(place);
  }
  return "insert into " + std::string(table.name) + " (" + names + ") select " + values +
         " where not exists (select 1 from " + table.name + " where " + isRow(table) + ")";
}

std::vector<Value> keyValues(const std::string& key) {
  std::vector<Value> values;
  std::string_view rest = key;
  for (std::size_t end = 0; end != std::string_view::npos;) {
    end = rest.find(kKeySeparator);
    values.emplace_back(std::string(rest.substr(0, end)));
    if (end != std::string_view::npos) rest.remove_prefix(end + 1);
  }
  return values;
}

/// The columns of the key as the table compares them: (a, b) for two.
std::string keyRow(const MasterTable& table) {
  std::string text;
  for (std::size_t place = 0; place < table.keyColumns; ++place)
    text += (place == 0 ? "(" : ", ") + table.columns[place];
  return text + ")";
}

std::string marks(const MasterTable& table) {
  return table.keyColumns == 1 ? "(?)" : "(?, ?)";
}

bool isLong(const MasterTable& table) {
  return std::string_view(table.name) == "spda" || std::string_view(table.name) == "tmda";
}

bool isOfOperator(const MasterTable& table) {
  return std::string_view(table.name).starts_with("operator");
}

}  // namespace

void MasterRows::put(const MasterTable& table, const std::string& key, const std::string& body) {
  if (std::string_view(table.name) == "sys_param") return putParameter(body);
  const std::vector<Value> values = table.valuesOf(body);
  // In this order a till's first million rows need one look each.
  std::int64_t written = connection_.runBound(insertText(table).c_str(), values);
  if (written > 0 && std::string_view(table.name) == "member") giveOthersPart(connection_, key);
  if (written == 0) written = connection_.runBound(updateText(table).c_str(), values);
  if (written > 0) touched(table, key);
}

void MasterRows::putParameter(const std::string& body) {
  const Json row = Json::parse(body);
  const auto name = row.at("name").get<std::string>();
  const auto value = row.at("value").get<std::string>();
  if (isOfTill(name)) return;
  if (connection_.query("select 1 from sys_param where name = ? and value = ?", name, value).next())
    return;
  ClsSysParam parameters;
  parameters.Conn(connection_);
  // A parameter of a newer program, or a value that only it takes, is left to it.
  static_cast<void>(parameters.set(name, value));
}

void MasterRows::removeParameter(const std::string& name) {
  if (isOfTill(name)) return;
  ClsSysParam parameters;
  parameters.Conn(connection_);
  static_cast<void>(parameters.unset(name));
}

void MasterRows::touched(const MasterTable& table, const std::string& key) {
  if (std::string_view(table.name) == "member") members_.insert(key);
  if (isOfOperator(table))
    operators_.insert(parseWhole32(key.substr(0, key.find(kKeySeparator))).value_or(0));
}

void MasterRows::remove(const MasterTable& table, const std::string& key) {
  const std::string_view name = table.name;
  if (name == "sys_param") return removeParameter(key);
  if (name == "operators") return removeOperator(parseWhole32(key).value_or(0));
  const std::string text =
      name == "member"
          ? "update member set enabled = 0 where bh = ? and enabled <> 0"
          : "delete from " + std::string(name) + " where " + keyRow(table) + " = " + marks(table);
  if (connection_.runBound(text.c_str(), keyValues(key)) > 0) touched(table, key);
}

void MasterRows::removeOperator(std::int64_t id) {
  connection_.run("delete from operator_rights where operator_id = ?", id);
  connection_.run("delete from operator_cards where operator_id = ?", id);
  const bool sells =
      connection_.query("select 1 from sell where operator_id = ? and state = 0", id).next();
  if (sells) {
    connection_.run("update operators set password = ? where id = ?", kNoHash, id);
    operators_.insert(id);
  } else if (connection_.run("delete from operators where id = ?", id) > 0) {
    goneOperators_.insert(id);
  }
}

// Numbers are in another order as texts than as numbers, but there are few operators and
// categories.
void MasterRows::removeOthers(const MasterTable& table, const std::string& behind,
                              const std::string* upTo, const std::set<std::string>& kept) {
  std::string text = "select " + table.keyText() + " as key from " + table.name + " where 1";
  std::vector<Value> bounds;
  const auto bound = [&](const char* comparison, const std::string& key) {
    text += " and " + keyRow(table) + comparison + marks(table);
    for (Value& value : keyValues(key)) bounds.push_back(std::move(value));
  };
  if (isLong(table) && !behind.empty()) bound(" > ", behind);
  if (isLong(table) && upTo != nullptr) bound(" <= ", *upTo);
  std::vector<std::string> gone;
  Rows rows = connection_.queryBound(text.c_str(), std::move(bounds));
  while (rows.next()) {
    const std::string key = rows.text("key");
    if (key > behind && (upTo == nullptr || key <= *upTo) && !kept.contains(key))
      gone.push_back(key);
  }
  for (const std::string& key : gone) remove(table, key);
}

// What only came down is no news for the server.
void MasterRows::note() {
  const Journal journal(connection_);
  for (const std::int64_t id : goneOperators_)
    journal.note(EntryKind::kOperatorRemoved, std::to_string(id), {{"down", "1"}});
  for (const std::int64_t id : operators_) noteOperator(id);
  for (const std::string& card : members_) {
    journal.note(EntryKind::kMemberChanged, card, [&] {
      Rows row = connection_.query("select id from member where bh = ?", card);
      row.next();
      return Json{{"member", memberRecord(connection_, row.whole("id").value_or(0))},
                  {"down", "1"}};
    });
  }
}

// Rights come before the operator who has them.
void MasterRows::noteOperator(std::int64_t id) {
  if (!connection_.query("select 1 from operators where id = ?", id).next()) return;
  Journal(connection_).note(EntryKind::kOperatorChanged, id, [&] {
    return Json{{"operator", operatorRecord(connection_, id)}, {"down", "1"}};
  });
}
