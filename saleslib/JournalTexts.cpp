#include "saleslib/JournalTexts.h"

#include <array>
#include <nlohmann/json.hpp>
#include <utility>

#include "saleslib/JournalEntry.h"
#include "saleslib/JournalKinds.h"
#include "saleslib/Tenders.h"

namespace {

using Json = nlohmann::json;

/// Texts with "，" between them.
class Listed {
 public:
  void add(const std::string& text) {
    if (!text.empty()) text_ += (text_.empty() ? "" : "，") + text;
  }
  /// The text of that name, if the object has one, behind its caption.
  void add(const Json& object, const char* name, const std::string& caption) {
    if (const std::string text = textIn(object, name); !text.empty()) add(caption + " " + text);
  }
  static std::string textIn(const Json& object, const char* name) {
    const auto found = object.find(name);
    if (found == object.end()) return {};
    return found->is_string() ? found->get<std::string>() : found->dump();
  }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

std::string shownLine(const Json& line) {
  return Listed::textIn(line, "name") + " " + Listed::textIn(line, "quantity") + " × " +
         Listed::textIn(line, "price");
}

void addBill(Listed& list, const Json& body) {
  if (!body.contains("bill")) return;
  const Json& bill = body.at("bill");
  list.add(std::to_string(body.at("lines").size()) + " 行");
  list.add(bill, "amount", "应收");
  for (const TenderKind& kind : tenderKinds()) list.add(bill, kind.column, kind.name);
  list.add(bill, "member_id", "会员内部号");
}

void addRecords(Listed& list, const Json& body) {
  using Columns = std::array<std::pair<const char*, const char*>, 3>;
  static const std::pair<const char*, Columns> kRecords[] = {
      {"return", {{{"item_id", "商品行"}, {"quantity", "数量"}, {"money", "退款"}}}},
      {"top_up", {{{"cardbh", "卡号"}, {"inMoney", "付款"}, {"addmoney", "充值"}}}},
      {"member", {{{"bh", "卡号"}, {"name", "姓名"}, {"phone", "电话"}}}},
      {"operator", {{{"id", "编号"}, {"name", "姓名"}, {"rights", "权限"}}}},
      {"shift", {{{"cash_float", "备用金"}, {"opened", "开班"}, {"opened_name", "开班人"}}}},
      {"card", {{{"number", "卡号"}, {"by", "余额变动"}, {"", ""}}}},
  };
  for (const auto& [name, columns] : kRecords) {
    if (!body.contains(name)) continue;
    for (const auto& [column, caption] : columns) list.add(body.at(name), column, caption);
  }
}

// What is many rows is counted.
void addCounts(Listed& list, const Json& body) {
  constexpr std::pair<const char*, const char*> kMany[] = {{"stock", " 种商品的库存"},
                                                           {"members", " 位会员"},
                                                           {"operators", " 位操作员"},
                                                           {"returns", " 笔退货"},
                                                           {"shifts", " 个班次"},
                                                           {"top_ups", " 笔充值"},
                                                           {"left", " 行"}};
  for (const auto& [name, unit] : kMany) {
    if (body.contains(name)) list.add(std::to_string(body.at(name).size()) + unit);
  }
  if (body.contains("bills")) {
    const Json& some = body.at("bills");
    list.add("单据 " + some.at("first").dump() + " 到 " + some.at("last").dump());
  }
}

void addTexts(Listed& list, const Json& body) {
  constexpr std::pair<const char*, const char*> kTexts[] = {
      {"from", "从"},      {"to", "到"},       {"sum", "合计"},    {"added", "新增"},
      {"updated", "更新"}, {"rows", "行数"},   {"file", "文件"},   {"backup", "备份"},
      {"old", "原文件"},   {"amount", "金额"}, {"reason", "原因"}, {"expected", "应有"},
      {"counted", "清点"}, {"over", "长短款"}, {"number", "编号"}, {"name", "姓名"}};
  if (body.contains("line")) list.add(shownLine(body.at("line")));
  if (body.contains("parameters") && body.contains("before")) {
    for (const auto& [name, value] : body.at("parameters").items())
      list.add(Listed::textIn(body, "before") + " 改成 " + value.get<std::string>());
  }
  for (const auto& [name, caption] : kTexts) list.add(body, name, caption);
}

}  // namespace

std::string entryName(const JournalEntry& entry) {
  const EntryKindName* kind = entryKindOf(entry.kind);
  return kind == nullptr ? entry.kind : kind->name;
}

std::string entryDetails(const JournalEntry& entry) {
  try {
    const Json body = Json::parse(entry.body);
    Listed list;
    addBill(list, body);
    addRecords(list, body);
    addCounts(list, body);
    addTexts(list, body);
    return list.text();
  } catch (const Json::exception&) {
    return "内容读不出来";
  }
}
