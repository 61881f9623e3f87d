#include "saleslib/JournalTexts.h"

#include <array>
#include <nlohmann/json.hpp>
#include <utility>

#include "base/Words.h"
#include "saleslib/JournalEntry.h"
#include "saleslib/JournalKinds.h"
#include "saleslib/Tenders.h"

namespace {

using Json = nlohmann::json;

/// Texts with "，" between them.
class Listed {
 public:
  void add(const std::string& text) {
    if (!text.empty()) text_ += (text_.empty() ? "" : Words::tr("，")) + text;
  }
  /// The text of that name, if the object has one, behind its caption.
  void add(const Json& object, const char* name, const char* caption) {
    if (const std::string text = textIn(object, name); !text.empty())
      add(Words::tr("%1 %2", Words::tr(caption), text));
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
  list.add(Words::tr("%1 行", body.at("lines").size()));
  list.add(bill, "amount", Words::mark("应收"));
  for (const TenderKind& kind : tenderKinds()) list.add(bill, kind.column, kind.name);
  list.add(bill, "member_id", Words::mark("会员内部号"));
}

void addRecords(Listed& list, const Json& body) {
  using Columns = std::array<std::pair<const char*, const char*>, 3>;
  static const std::pair<const char*, Columns> kRecords[] = {
      {"return",
       {{{"item_id", Words::mark("商品行")},
         {"quantity", Words::mark("数量")},
         {"money", Words::mark("退款")}}}},
      {"top_up",
       {{{"cardbh", Words::mark("卡号")},
         {"inMoney", Words::mark("付款")},
         {"addmoney", Words::mark("充值")}}}},
      {"member",
       {{{"bh", Words::mark("卡号")},
         {"name", Words::mark("姓名")},
         {"phone", Words::mark("电话")}}}},
      {"operator",
       {{{"id", Words::mark("编号")},
         {"name", Words::mark("姓名")},
         {"rights", Words::mark("权限")}}}},
      {"shift",
       {{{"opened", Words::mark("开班时间")},
         {"opened_name", Words::mark("开班人")},
         {"cash_float", Words::mark("备用金")}}}},
      {"card", {{{"number", Words::mark("卡号")}, {"by", Words::mark("余额变动")}, {"", ""}}}},
      {"charge", {{{"number", Words::mark("卡号")}, {"amount", Words::mark("金额")}, {"", ""}}}},
  };
  for (const auto& [name, columns] : kRecords) {
    if (!body.contains(name)) continue;
    for (const auto& [column, caption] : columns) list.add(body.at(name), column, caption);
  }
}

// What is many rows is counted.
void addCounts(Listed& list, const Json& body) {
  constexpr std::pair<const char*, const char*> kMany[] = {
      {"stock", Words::mark("%1 种商品的库存")},
      {"members", Words::mark("%1 位会员")},
      {"operators", Words::mark("%1 位操作员")},
      {"returns", Words::mark("%1 笔退货")},
      {"top_ups", Words::mark("%1 笔充值")},
      {"shifts", Words::mark("%1 个班次")},
      {"left", Words::mark("%1 行")}};
  for (const auto& [name, unit] : kMany) {
    if (body.contains(name)) list.add(Words::tr(unit, body.at(name).size()));
  }
  if (body.contains("bills")) {
    const Json& some = body.at("bills");
    list.add(Words::tr("单据 %1 到 %2", some.at("first").dump(), some.at("last").dump()));
  }
}

void addTexts(Listed& list, const Json& body) {
  constexpr std::pair<const char*, const char*> kTexts[] = {
      {"from", Words::mark("从")},         {"to", Words::mark("到")},
      {"sum", Words::mark("合计")},        {"added", Words::mark("新增")},
      {"updated", Words::mark("更新")},    {"rows", Words::mark("行数")},
      {"right", Words::mark("权限")},      {"size", Words::mark("多少")},
      {"approver", Words::mark("批准人")}, {"file", Words::mark("文件")},
      {"backup", Words::mark("备份")},     {"old", Words::mark("原文件")},
      {"amount", Words::mark("金额")},     {"reason", Words::mark("原因")},
      {"expected", Words::mark("应有")},   {"counted", Words::mark("清点")},
      {"over", Words::mark("长短款")}};
  if (body.contains("line")) list.add(shownLine(body.at("line")));
  if (body.contains("parameters") && body.contains("before")) {
    for (const auto& [name, value] : body.at("parameters").items())
      list.add(value.is_null() ? Words::tr("%1 改成没有设置", Listed::textIn(body, "before"))
                               : Words::tr("%1 改成 %2", Listed::textIn(body, "before"),
                                           value.get<std::string>()));
  }
  for (const auto& [name, caption] : kTexts) list.add(body, name, caption);
}

}  // namespace

std::string entryName(const JournalEntry& entry) {
  const EntryKindName* kind = entryKindOf(entry.kind);
  return kind == nullptr ? entry.kind : Words::tr(kind->name);
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
    return Words::tr("内容读不出来");
  }
}
