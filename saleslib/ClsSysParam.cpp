#include "saleslib/ClsSysParam.h"

#include <array>
#include <nlohmann/json.hpp>
#include <optional>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Words.h"
#include "saleslib/Journal.h"
#include "saleslib/ShopLink.h"
#include "saleslib/Tenders.h"
#include "store/Connection.h"
#include "store/Transaction.h"

namespace {

/// What values a parameter has.
struct Kind {
  /// The value in the form that is kept, or nothing for a text that is no such value.
  std::optional<std::string> (*read)(std::string_view text);
  const char* refusal;
};

struct Definition {
  const char* name;
  const Kind* kind;
  const char* byDefault;
  const char* meaning;
};

constexpr std::size_t kLongestText = 200;
constexpr std::string_view kJournal = "Journal", kGoodsImport = "GoodsImport";

std::optional<std::string> readText(std::string_view text) {
  if (hasControlCharacter(text) || characters(text) > kLongestText) return std::nullopt;
  return std::string(text);
}

std::optional<std::string> readSwitch(std::string_view text) {
  const std::string word = asciiLower(halfWidth(trimmed(text)));
  // untranslated: what may be typed in either language
  if (word == "1" || word == "true" || word == "是") return "1";
  // untranslated: what may be typed in either language
  if (word == "0" || word == "false" || word == "否") return "0";
  return std::nullopt;
}

std::optional<std::string> readWhole(std::string_view text) {
  const std::optional<double> number = parseNumber(text);
  const std::optional<std::int16_t> whole = parseWhole16(text);
  if (!whole || *whole < 0 || *number != *whole) return std::nullopt;
  return std::to_string(*whole);
}

std::optional<std::string> readStockRule(std::string_view text) {
  const std::optional<std::string> whole = readWhole(text);
  return whole == "0" || whole == "1" ? whole : std::nullopt;
}

std::optional<std::string> readRate(std::string_view text) {
  const std::optional<Currency> rate = Currency::parse(text);
  if (!rate || *rate <= Currency() || *rate > Currency::fromYuan(1)) return std::nullopt;
  return generalNumber(*rate);
}

constexpr Kind kText = {readText, Words::mark("不能超过200个字符，也不能换行")};
constexpr Kind kSwitch = {readSwitch, Words::mark("只能是 0 或 1（否或是）")};
constexpr Kind kWhole = {readWhole, Words::mark("只能是 0 到 32767 的整数")};
constexpr Kind kStockRule = {readStockRule,
                             Words::mark("只能是 0（可以负库存）或 1（不可以负库存）")};
constexpr Kind kRate = {readRate, Words::mark("只能是大于 0、不超过 1 的数（九折写 0.9）")};

constexpr std::array kDefinitions = {
    Definition{"ShopName", &kText, "", Words::mark("店名，小票的第一行")},
    Definition{"ReceiptText1", &kText, "", Words::mark("小票文字一")},
    Definition{"ReceiptText2", &kText, "", Words::mark("小票文字二")},
    Definition{"ReceiptText3", &kText, "", Words::mark("小票文字三")},
    Definition{"ReceiptText4", &kText, "", Words::mark("小票文字四")},
    Definition{"ReceiptText5", &kText, "", Words::mark("小票文字五")},
    Definition{"ReceiptText6", &kText, "", Words::mark("小票文字六")},
    Definition{"StockRule", &kStockRule, "0", Words::mark("库存不够时：0 照卖，1 不卖")},
    Definition{"RoundJiao", &kSwitch, "0", Words::mark("应收舍入到角：0 否，1 是")},
    Definition{"RoundYuan", &kSwitch, "0", Words::mark("应收舍入到元：0 否，1 是")},
    Definition{"PointUnit", &kWhole, "10", Words::mark("消费多少元积 1 分，0 不积分")},
    Definition{"GeneralRate", &kRate, "1", Words::mark("没有自己折扣的商品打几折（九折写 0.9）")},
    Definition{"VipRate", &kRate, "1", Words::mark("贵宾卡打几折（九折写 0.9）")},
    Definition{"SilverRate", &kRate, "1", Words::mark("银卡打几折（九折写 0.9）")},
    Definition{"GoldRate", &kRate, "1", Words::mark("金卡打几折（九折写 0.9）")},
    Definition{"BackupOnExit", &kSwitch, "0", Words::mark("退出程序时备份数据文件：0 否，1 是")},
    Definition{"CheckPayment", &kSwitch, "0",
               Words::mark("收款、价格、折扣像打错时先问一声：0 否，1 是")},
    Definition{"GoodsImport", &kSwitch, "0", Words::mark("收银台上可以导入商品：0 否，1 是")},
    Definition{"PhonePay", &kSwitch, "0", Words::mark("收手机扫码付款：0 否，1 是")},
    Definition{"OwnerReport", &kSwitch, "0",
               Words::mark("收银程序的更多功能里有经营报表（要有 report 权限）：0 否，1 是")},
    Definition{"Practice", &kSwitch, "0",
               Words::mark("收银程序的更多功能里有练习，练习不入账：0 否，1 是")},
    Definition{"JoinShop", &kSwitch, "0",
               Words::mark("收银程序的更多功能里有加入店铺，加入有服务器的店：0 否，1 是")},
    Definition{"Approval", &kSwitch, "0",
               Words::mark("操作员没有权限的操作要有人授权：0 否，1 是")},
    Definition{"Shifts", &kSwitch, "0",
               Words::mark("按班次收银：先开班再收款，结班时清点钱箱，出班次表：0 否，1 是")},
    Definition{
        "Journal", &kSwitch, "0",
        Words::mark(
            "记日志：每笔业务一条，只增不改，check 拿账目和它核对；打开时收银程序先退出：0 否，1 "
            "是")},
    Definition{"OfflineCard", &kSwitch, "0",
               Words::mark("连着服务器的店，服务器没有回应时储值卡付款：0 不收，1 收到 "
                           "OfflineCardLimit 为止")},
    Definition{
        "OfflineCardLimit", &kWhole, "0",
        Words::mark("服务器没有回应时，一张卡在一台收银机上最多收多少元；同一张卡最多可能损失 "
                    "收银机台数 × 这个数")},
    Definition{"OfflineReturn", &kSwitch, "0",
               Words::mark("连着服务器的店，服务器没有回应时，本机已上传的单据退货：0 不退，1 照退"
                           "（同一件商品可能在两台各退一次）")},
    Definition{"OfflineStock", &kSwitch, "0",
               Words::mark("连着服务器的店，StockRule 是 1 而服务器没有回应时，库存不够："
                           "0 提醒后照卖，1 不卖")},
    Definition{"OfflineLoginDays", &kWhole, "7",
               Words::mark("连着服务器的店，收银机多少天没有连上服务器就不能登录，0 不限")},
};

const Definition* find(std::string_view name) {
  for (const Definition& definition : kDefinitions) {
    if (equalIgnoringCase(definition.name, name)) return &definition;
  }
  return nullptr;
}

}  // namespace

void ClsSysParam::Conn(Connection& connection) {
  connection_ = &connection;
  values_.clear();
  Rows rows = connection.query("select name, value from sys_param");
  while (rows.next()) {
    const Definition* definition = find(rows.text("name"));
    if (definition == nullptr) continue;
    if (auto value = definition->kind->read(rows.text("value"))) {
      values_[definition->name] = *value;
    }
  }
}

std::vector<ClsSysParam::Parameter> ClsSysParam::list() const {
  std::vector<Parameter> parameters;
  parameters.reserve(kDefinitions.size());
  for (const Definition& definition : kDefinitions) {
    parameters.push_back({definition.name, value(definition.name),
                          values_.contains(definition.name), Words::tr(definition.meaning)});
  }
  return parameters;
}

std::string ClsSysParam::set(std::string_view name, std::string_view value) {
  ensure(connection_ != nullptr, "ClsSysParam is bound before it is used");
  std::string refused = refusal(name, value);
  if (!refused.empty()) return refused;
  const Definition* definition = find(name);
  const std::optional<std::string> kept = definition->kind->read(value);
  if (definition->name == kJournal && kept == "0" && shopLink(*connection_))
    return Words::tr("这台收银机连着店铺的服务器，日志不能停。");
  if (definition->name == kGoodsImport && kept == "1" && shopLink(*connection_))
    return Words::tr("这台收银机连着店铺的服务器，商品从办公室来。");
  const std::string before = this->value(definition->name);
  Transaction transaction(*connection_);
  const std::int64_t known =
      connection_->run("update sys_param set value = ? where name = ?", *kept, definition->name);
  if (known == 0)
    connection_->run("insert into sys_param (name, value) values (?, ?)", definition->name, *kept);
  note(definition->name, before, *kept);
  transaction.commit();
  values_[definition->name] = *kept;
  return {};
}

// The parameter Journal begins and ends the journal itself.
void ClsSysParam::note(const std::string& name, const std::string& before,
                       const std::string& value) {
  const Journal journal(*connection_);
  const bool isSwitch = name == kJournal;
  if (isSwitch && value == "1" && !journal.isOn()) return journal.begin();
  journal.note(EntryKind::kParameterSet, name, [&] {
    return nlohmann::json{{"parameters", {{name, value}}}, {"before", before}};
  });
  if (isSwitch && value == "0") journal.end();
}

std::string ClsSysParam::refusal(std::string_view name, std::string_view value) {
  const Definition* definition = find(name);
  if (definition == nullptr) return Words::tr("没有这个参数：%1", name);
  if (definition->kind->read(value)) return {};
  return Words::tr("%1 %2！", definition->name, Words::tr(definition->kind->refusal));
}

std::string ClsSysParam::value(std::string_view name) const {
  const auto found = values_.find(name);
  if (found != values_.end()) return found->second;
  const Definition* definition = find(name);
  ensure(definition != nullptr, "a parameter has a definition");
  return definition->byDefault;
}

std::int16_t ClsSysParam::whole(std::string_view name) const {
  return parseWhole16(value(name)).value();
}

bool ClsSysParam::isOn(std::string_view name) const {
  return value(name) == "1";
}

Currency ClsSysParam::rate(std::string_view name) const {
  return Currency::parse(value(name)).value();
}

std::string ClsSysParam::ShopName() const {
  return value("ShopName");
}
std::string ClsSysParam::ReceiptText1() const {
  return value("ReceiptText1");
}
std::string ClsSysParam::ReceiptText2() const {
  return value("ReceiptText2");
}
std::string ClsSysParam::ReceiptText3() const {
  return value("ReceiptText3");
}
std::string ClsSysParam::ReceiptText4() const {
  return value("ReceiptText4");
}
std::string ClsSysParam::ReceiptText5() const {
  return value("ReceiptText5");
}
std::string ClsSysParam::ReceiptText6() const {
  return value("ReceiptText6");
}
std::int16_t ClsSysParam::StockRule() const {
  return whole("StockRule");
}
bool ClsSysParam::RoundJiao() const {
  return isOn("RoundJiao");
}
bool ClsSysParam::RoundYuan() const {
  return isOn("RoundYuan");
}
std::int16_t ClsSysParam::PointUnit() const {
  return whole("PointUnit");
}
double ClsSysParam::GeneralRate() const {
  return parseNumber(value("GeneralRate")).value();
}
Currency ClsSysParam::VipRate() const {
  return rate("VipRate");
}
Currency ClsSysParam::SilverRate() const {
  return rate("SilverRate");
}
Currency ClsSysParam::GoldRate() const {
  return rate("GoldRate");
}
bool ClsSysParam::BackupOnExit() const {
  return isOn("BackupOnExit");
}
bool ClsSysParam::CheckPayment() const {
  return isOn("CheckPayment");
}
bool ClsSysParam::GoodsImport() const {
  return isOn("GoodsImport");
}
bool ClsSysParam::JoinShop() const {
  return isOn("JoinShop");
}
bool ClsSysParam::Practice() const {
  return isOn("Practice");
}
bool ClsSysParam::Approval() const {
  return isOn("Approval");
}
bool ClsSysParam::OwnerReport() const {
  return isOn("OwnerReport");
}
bool ClsSysParam::Shifts() const {
  return isOn("Shifts");
}
bool ClsSysParam::KeepsJournal() const {
  return isOn("Journal");
}
Currency ClsSysParam::OfflineCardLimit() const {
  return isOn("OfflineCard") ? Currency::fromYuan(whole("OfflineCardLimit")) : Currency();
}
bool ClsSysParam::OfflineReturn() const {
  return isOn("OfflineReturn");
}
bool ClsSysParam::OfflineStock() const {
  return isOn("OfflineStock");
}
std::int16_t ClsSysParam::OfflineLoginDays() const {
  return whole("OfflineLoginDays");
}
bool ClsSysParam::Takes(const TenderKind& kind) const {
  return kind.parameter == nullptr || isOn(kind.parameter);
}
