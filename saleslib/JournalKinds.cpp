#include "saleslib/JournalKinds.h"

#include <algorithm>
#include <cstddef>

#include "base/Failure.h"
#include "base/Words.h"

const std::vector<EntryKindName>& entryKinds() {
  using enum EntryKind;
  static const std::vector<EntryKindName> kinds = {
      {kJournalBegun, "journal_begun", "日志开始"},
      {kBooksStated, "books_stated", "起点账面"},
      {kJournalEnded, "journal_ended", "日志停用"},
      {kLoggedIn, "logged_in", "登录"},
      {kLoginRefused, "login_refused", "登录被拒"},
      {kLoggedOff, "logged_off", "退出登录"},
      {kBillOpened, "bill_opened", "开单"},
      {kPriceTyped, "price_typed", "手输单价"},
      {kQuantityLowered, "quantity_lowered", "减少数量"},
      {kDiscountChanged, "discount_changed", "改折扣"},
      {kLineDeleted, "line_deleted", "删除商品行"},
      {kBillCancelled, "bill_cancelled", "撤消单据"},
      {kBillSuspended, "bill_suspended", "挂单"},
      {kBillRecalled, "bill_recalled", "调入挂单"},
      {kCardCharged, "card_charged", "储值卡付款"},
      {kBillSettled, "bill_settled", "结账"},
      {kBillCompleted, "bill_completed", "补存结账"},
      {kBillRedated, "bill_redated", "改单据时间"},
      {kGoodsReturned, "goods_returned", "退货"},
      {kTopUpBegun, "top_up_begun", "充值收款"},
      {kTopUpLoaded, "top_up_loaded", "充值到账"},
      {kMemberAdded, "member_added", "增加会员"},
      {kMemberChanged, "member_changed", "修改会员"},
      {kDrawerOpened, "drawer_opened", "开钱箱"},
      {kReprinted, "reprinted", "补打小票"},
      {kExported, "exported", "导出"},
      {kReported, "reported", "经营报表"},
      {kSettingsChanged, "settings_changed", "改本机设置"},
      {kParameterSet, "parameter_set", "设店铺参数"},
      {kOperatorAdded, "operator_added", "增加操作员"},
      {kOperatorChanged, "operator_changed", "修改操作员"},
      {kOperatorRemoved, "operator_removed", "删除操作员"},
      {kImported, "imported", "导入"},
      {kStockCounted, "stock_counted", "设库存"},
      {kRestored, "restored", "恢复备份"},
      {kClockSetBack, "clock_set_back", "时钟倒退"},
      {kApprovalGiven, "approval_given", "授权"},
      {kApprovalRefused, "approval_refused", "没有授权"},
      {kShiftOpened, "shift_opened", "开班"},
      {kCashMoved, "cash_moved", "钱箱存取"},
      {kShiftCounted, "shift_counted", "清点钱箱"},
      {kShiftClosed, "shift_closed", "结班"},
  };
  return kinds;
}

const EntryKindName& entryKind(EntryKind kind) {
  const EntryKindName& name = entryKinds().at(static_cast<std::size_t>(kind));
  ensure(name.kind == kind, "the kinds of entries stand in the order of their names");
  return name;
}

const EntryKindName* entryKindOf(std::string_view key) {
  const auto& kinds = entryKinds();
  const auto found = std::ranges::find_if(kinds, [&](const auto& each) { return each.key == key; });
  return found == kinds.end() ? nullptr : &*found;
}
