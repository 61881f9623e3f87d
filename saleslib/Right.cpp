#include "saleslib/Right.h"

#include <algorithm>
#include <cmath>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Words.h"

namespace {

constexpr Currency kWhole = Currency::fromScaled(100 * Currency::kScale);

bool fits(const RightKind& kind, Currency limit) {
  if (kind.limit == RightKind::Limit::kNone || limit <= Currency()) return false;
  return kind.limit == RightKind::Limit::kYuan || limit <= kWhole;
}

}  // namespace

const std::array<RightKind, kRights>& rightKinds() {
  using enum RightKind::Limit;
  static constexpr std::array<RightKind, kRights> kKinds = {{
      {Right::kSell, "sell", Words::mark("收银")},
      {Right::kDiscount, "discount", Words::mark("打折和优惠"), kPercent},
      {Right::kPrice, "price", Words::mark("手工定价")},
      {Right::kNegative, "negative", Words::mark("负数量")},
      {Right::kDelete, "delete", Words::mark("删行和撤单")},
      {Right::kReturn, "return", Words::mark("退货"), kYuan},
      {Right::kTopUp, "topup", Words::mark("会员充值")},
      {Right::kDrawer, "drawer", Words::mark("开钱箱")},
      {Right::kReprint, "reprint", Words::mark("补打小票")},
      {Right::kQuery, "query", Words::mark("销售查询和导出")},
      {Right::kMembers, "members", Words::mark("会员资料")},
      {Right::kSettings, "settings", Words::mark("设置和导入商品")},
      {Right::kShift, "shift", Words::mark("交班")},
      {Right::kReport, "report", Words::mark("经营报表")},
      {Right::kJournal, "journal", Words::mark("操作日志")},
  }};
  return kKinds;
}

const RightKind& rightKind(Right right) {
  const RightKind& kind = rightKinds().at(static_cast<std::size_t>(right));
  ensure(kind.right == right, "the rights stand in the order of their names");
  return kind;
}

std::optional<HeldRight> parseRight(std::string_view text) {
  const std::size_t colon = text.find(':');
  const std::string_view key = text.substr(0, colon);
  const auto& kinds = rightKinds();
  const auto* const kind = std::ranges::find_if(
      kinds, [key](const RightKind& each) { return equalIgnoringCase(each.key, key); });
  if (kind == kinds.end()) return std::nullopt;
  if (colon == std::string_view::npos) return HeldRight{kind->right, std::nullopt};
  const std::optional<Currency> limit = Currency::parse(text.substr(colon + 1));
  if (!limit || !fits(*kind, *limit)) return std::nullopt;
  return HeldRight{kind->right, limit};
}

std::string rightText(const HeldRight& held) {
  const std::string key = rightKind(held.right).key;
  return held.limit ? key + ':' + generalNumber(*held.limit) : key;
}

const std::vector<std::string>& allRights() {
  static const std::vector<std::string> all = [] {
    std::vector<std::string> keys;
    for (const RightKind& kind : rightKinds()) keys.emplace_back(kind.key);
    return keys;
  }();
  return all;
}

Currency percentOff(Discount discount) {
  const double off = (1 - discount.factor()) * static_cast<double>(kWhole.scaled());
  return Currency::fromScaled(std::max<std::int64_t>(0, std::llround(off)));
}

// Rounded up, so that nothing above a limit is taken for the limit.
Currency percentOf(Currency part, Currency whole) {
  if (whole <= Currency() || part >= whole) return kWhole;
  const double share = static_cast<double>(part.scaled()) * static_cast<double>(kWhole.scaled()) /
                       static_cast<double>(whole.scaled());
  return Currency::fromScaled(static_cast<std::int64_t>(std::ceil(share)));
}
