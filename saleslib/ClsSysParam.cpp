#include "saleslib/ClsSysParam.h"

#include <nlohmann/json.hpp>
#include <optional>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Words.h"
#include "saleslib/Journal.h"
#include "saleslib/ParameterList.h"
#include "saleslib/ShopLink.h"
#include "saleslib/Tenders.h"
#include "store/Connection.h"
#include "store/Transaction.h"

namespace {

constexpr std::string_view kJournal = "Journal", kGoodsImport = "GoodsImport";

}  // namespace

void ClsSysParam::Conn(Connection& connection) {
  connection_ = &connection;
  values_.clear();
  Rows rows = connection.query("select name, value from sys_param");
  while (rows.next()) {
    const ParameterDefinition* definition = parameterDefinition(rows.text("name"));
    if (definition == nullptr) continue;
    if (auto value = definition->kind->read(rows.text("value"))) {
      values_[definition->name] = *value;
    }
  }
}

std::vector<ClsSysParam::Parameter> ClsSysParam::list() const {
  std::vector<Parameter> parameters;
  parameters.reserve(parameterDefinitions().size());
  for (const ParameterDefinition& definition : parameterDefinitions()) {
    parameters.push_back({definition.name, value(definition.name),
                          values_.contains(definition.name), Words::tr(definition.meaning)});
  }
  return parameters;
}

std::string ClsSysParam::set(std::string_view name, std::string_view value) {
  ensure(connection_ != nullptr, "ClsSysParam is bound before it is used");
  std::string refused = refusal(name, value);
  if (!refused.empty()) return refused;
  const ParameterDefinition* definition = parameterDefinition(name);
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

std::string ClsSysParam::unset(std::string_view name) {
  ensure(connection_ != nullptr, "ClsSysParam is bound before it is used");
  const ParameterDefinition* definition = parameterDefinition(name);
  if (definition == nullptr) return Words::tr("没有这个参数：%1", name);
  if (definition->name == kJournal) return Words::tr("日志要用 Journal=0 停。");
  const std::string before = value(definition->name);
  Transaction transaction(*connection_);
  if (connection_->run("delete from sys_param where name = ?", definition->name) == 0) return {};
  Journal(*connection_).note(EntryKind::kParameterSet, definition->name, [&] {
    return nlohmann::json{{"parameters", {{definition->name, nullptr}}}, {"before", before}};
  });
  transaction.commit();
  values_.erase(definition->name);
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
  const ParameterDefinition* definition = parameterDefinition(name);
  if (definition == nullptr) return Words::tr("没有这个参数：%1", name);
  if (definition->kind->read(value)) return {};
  return Words::tr("%1 %2！", definition->name, Words::tr(definition->kind->refusal));
}

std::string ClsSysParam::value(std::string_view name) const {
  const auto found = values_.find(name);
  if (found != values_.end()) return found->second;
  const ParameterDefinition* definition = parameterDefinition(name);
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
