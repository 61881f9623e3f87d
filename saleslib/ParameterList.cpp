#include "saleslib/ParameterList.h"

#include <array>
#include <cstdint>

#include "base/Currency.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Words.h"

namespace {

constexpr std::size_t kLongestText = 200;

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

constexpr ParameterKind kText = {readText, Words::mark("不能超过200个字符，也不能换行")};
constexpr ParameterKind kSwitch = {readSwitch, Words::mark("只能是 0 或 1（否或是）")};
constexpr ParameterKind kWhole = {readWhole, Words::mark("只能是 0 到 32767 的整数")};
constexpr ParameterKind kStockRule = {readStockRule,
                                      Words::mark("只能是 0（可以负库存）或 1（不可以负库存）")};
constexpr ParameterKind kRate = {readRate,
                                 Words::mark("只能是大于 0、不超过 1 的数（九折写 0.9）")};

constexpr std::array kDefinitions = {
    ParameterDefinition{"ShopName", &kText, "", Words::mark("店名，小票的第一行")},
    ParameterDefinition{"ReceiptText1", &kText, "", Words::mark("小票文字一")},
    ParameterDefinition{"ReceiptText2", &kText, "", Words::mark("小票文字二")},
    ParameterDefinition{"ReceiptText3", &kText, "", Words::mark("小票文字三")},
    ParameterDefinition{"ReceiptText4", &kText, "", Words::mark("小票文字四")},
    ParameterDefinition{"ReceiptText5", &kText, "", Words::mark("小票文字五")},
    ParameterDefinition{"ReceiptText6", &kText, "", Words::mark("小票文字六")},
    ParameterDefinition{"StockRule", &kStockRule, "0", Words::mark("库存不够时：0 照卖，1 不卖")},
    ParameterDefinition{"RoundJiao", &kSwitch, "0", Words::mark("应收舍入到角：0 否，1 是")},
    ParameterDefinition{"RoundYuan", &kSwitch, "0", Words::mark("应收舍入到元：0 否，1 是")},
    ParameterDefinition{"PointUnit", &kWhole, "10", Words::mark("消费多少元积 1 分，0 不积分")},
    ParameterDefinition{"GeneralRate", &kRate, "1",
                        Words::mark("没有自己折扣的商品打几折（九折写 0.9）")},
    ParameterDefinition{"VipRate", &kRate, "1", Words::mark("贵宾卡打几折（九折写 0.9）")},
    ParameterDefinition{"SilverRate", &kRate, "1", Words::mark("银卡打几折（九折写 0.9）")},
    ParameterDefinition{"GoldRate", &kRate, "1", Words::mark("金卡打几折（九折写 0.9）")},
    ParameterDefinition{"BackupOnExit", &kSwitch, "0",
                        Words::mark("退出程序时备份数据文件：0 否，1 是")},
    ParameterDefinition{"CheckPayment", &kSwitch, "0",
                        Words::mark("收款、价格、折扣像打错时先问一声：0 否，1 是")},
    ParameterDefinition{"GoodsImport", &kSwitch, "0",
                        Words::mark("收银台上可以导入商品：0 否，1 是")},
    ParameterDefinition{"PhonePay", &kSwitch, "0", Words::mark("收手机扫码付款：0 否，1 是")},
    ParameterDefinition{
        "OwnerReport", &kSwitch, "0",
        Words::mark("收银程序的更多功能里有经营报表（要有 report 权限）：0 否，1 是")},
    ParameterDefinition{"Practice", &kSwitch, "0",
                        Words::mark("收银程序的更多功能里有练习，练习不入账：0 否，1 是")},
    ParameterDefinition{
        "JoinShop", &kSwitch, "0",
        Words::mark("收银程序的更多功能里有加入店铺，加入有服务器的店：0 否，1 是")},
    ParameterDefinition{"Approval", &kSwitch, "0",
                        Words::mark("操作员没有权限的操作要有人授权：0 否，1 是")},
    ParameterDefinition{
        "Shifts", &kSwitch, "0",
        Words::mark("按班次收银：先开班再收款，结班时清点钱箱，出班次表：0 否，1 是")},
    ParameterDefinition{
        "Journal", &kSwitch, "0",
        Words::mark(
            "记日志：每笔业务一条，只增不改，check 拿账目和它核对；打开时收银程序先退出：0 否，1 "
            "是")},
    ParameterDefinition{"OfflineCard", &kSwitch, "0",
                        Words::mark("连着服务器的店，服务器没有回应时储值卡付款：0 不收，1 收到 "
                                    "OfflineCardLimit 为止")},
    ParameterDefinition{
        "OfflineCardLimit", &kWhole, "0",
        Words::mark("服务器没有回应时，一张卡在一台收银机上最多收多少元；同一张卡最多可能损失 "
                    "收银机台数 × 这个数")},
    ParameterDefinition{
        "OfflineReturn", &kSwitch, "0",
        Words::mark("连着服务器的店，服务器没有回应时，本机已上传的单据退货：0 不退，1 照退"
                    "（同一件商品可能在两台各退一次）")},
    ParameterDefinition{"OfflineStock", &kSwitch, "0",
                        Words::mark("连着服务器的店，StockRule 是 1 而服务器没有回应时，库存不够："
                                    "0 提醒后照卖，1 不卖")},
    ParameterDefinition{
        "OfflineLoginDays", &kWhole, "7",
        Words::mark("连着服务器的店，收银机多少天没有连上服务器就不能登录，0 不限")},
};

}  // namespace

std::span<const ParameterDefinition> parameterDefinitions() {
  return kDefinitions;
}

const ParameterDefinition* parameterDefinition(std::string_view name) {
  for (const ParameterDefinition& definition : kDefinitions) {
    if (equalIgnoringCase(definition.name, name)) return &definition;
  }
  return nullptr;
}
