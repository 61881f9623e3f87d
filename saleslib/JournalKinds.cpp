#include "saleslib/JournalKinds.h"

#include <algorithm>
#include <cstddef>

#include "base/Failure.h"
#include "base/Words.h"

const std::vector<EntryKindName>& entryKinds() {
  using enum EntryKind;
  static const std::vector<EntryKindName> kinds = {
      {kJournalBegun, "journal_begun", Words::mark("日志开始")},
      {kBooksStated, "books_stated", Words::mark("起点账面")},
      {kJournalEnded, "journal_ended", Words::mark("日志停用")},
      {kLoggedIn, "logged_in", Words::mark("登录")},
      {kLoginRefused, "login_refused", Words::mark("登录被拒")},
      {kLoggedOff, "logged_off", Words::mark("退出登录")},
      {kBillOpened, "bill_opened", Words::mark("开单")},
      {kPriceTyped, "price_typed", Words::mark("手输单价")},
      {kQuantityLowered, "quantity_lowered", Words::mark("减少数量")},
      {kDiscountChanged, "discount_changed", Words::mark("改折扣")},
      {kLineDeleted, "line_deleted", Words::mark("删除商品行")},
      {kBillCancelled, "bill_cancelled", Words::mark("撤消单据")},
      {kBillSuspended, "bill_suspended", Words::mark("挂单")},
      {kBillRecalled, "bill_recalled", Words::mark("调入挂单")},
      {kCardCharged, "card_charged", Words::mark("储值卡付款")},
      {kBillSettled, "bill_settled", Words::mark("结账")},
      {kBillCompleted, "bill_completed", Words::mark("补存结账")},
      {kBillRedated, "bill_redated", Words::mark("改单据时间")},
      {kGoodsReturned, "goods_returned", Words::mark("退货")},
      {kTopUpBegun, "top_up_begun", Words::mark("充值收款")},
      {kTopUpLoaded, "top_up_loaded", Words::mark("充值到账")},
      {kMemberAdded, "member_added", Words::mark("增加会员")},
      {kMemberChanged, "member_changed", Words::mark("修改会员")},
      {kDrawerOpened, "drawer_opened", Words::mark("开钱箱")},
      {kReprinted, "reprinted", Words::mark("补打小票")},
      {kExported, "exported", Words::mark("导出")},
      {kReported, "reported", Words::mark("经营报表")},
      {kSettingsChanged, "settings_changed", Words::mark("改本机设置")},
      {kParameterSet, "parameter_set", Words::mark("设店铺参数")},
      {kOperatorAdded, "operator_added", Words::mark("增加操作员")},
      {kOperatorChanged, "operator_changed", Words::mark("修改操作员")},
      {kOperatorRemoved, "operator_removed", Words::mark("删除操作员")},
      {kImported, "imported", Words::mark("导入")},
      {kStockCounted, "stock_counted", Words::mark("设库存")},
      {kRestored, "restored", Words::mark("恢复备份")},
      {kClockSetBack, "clock_set_back", Words::mark("时钟倒退")},
      {kApprovalGiven, "approval_given", Words::mark("授权")},
      {kApprovalRefused, "approval_refused", Words::mark("没有授权")},
      {kShiftOpened, "shift_opened", Words::mark("开班")},
      {kCashMoved, "cash_moved", Words::mark("钱箱存取")},
      {kShiftCounted, "shift_counted", Words::mark("清点钱箱")},
      {kShiftClosed, "shift_closed", Words::mark("结班")},
      {kChargeVoided, "charge_voided", Words::mark("撤消储值卡扣款")},
      {kReturnVoided, "return_voided", Words::mark("撤消退货")},
      {kReturnedElsewhere, "returned_elsewhere", Words::mark("别台退货")},
      {kBillReleased, "bill_released", Words::mark("挂单交给别台")},
      {kBillReceived, "bill_received", Words::mark("接到别台挂单")},
      {kBillRefused, "bill_refused", Words::mark("别台挂单读不出来")},
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
