#include "sale/MemberCard.h"

#include "app/posMod.h"
#include "base/Failure.h"
#include "checkout/Checkout.h"
#include "checkout/SaleScreen.h"
#include "checkout/SaleState.h"
#include "saleslib/CardNumber.h"

MemberCard::MemberCard(posMod& pos, SaleState& state, SaleScreen& screen, Checkout& checkout)
    : pos_(pos), state_(state), screen_(screen), checkout_(checkout) {}

void MemberCard::AttachMember() {
  if (state_.curLine || !state_.curBill->Items().empty()) {
    screen_.ShowMessage(tr("会员卡只能在还没有开始销售时加入！"));
    return;
  }
  const QString typed = screen_.prompt(tr("会员卡"), tr("输入会员卡号或电话："));
  const std::string number = typed.toStdString();
  std::shared_ptr<ClsMember> member;
  try {
    if (!memberNumber(number).empty()) member = find(number);
  } catch (const Failure& failure) {
    screen_.messageBox(QString::fromStdString(failure.what()));
  }
  state_.curBill->setMemberId(member ? member->Id() : 0);
  show(std::move(member));
}

std::shared_ptr<ClsMember> MemberCard::find(const std::string& number) {
  std::shared_ptr<ClsMember> member = pos_.gMemberSvc.GetMember(number);
  if (!member) member = chooseByPhone(number);
  if (!member || member->Enabled()) return member;
  screen_.ShowMessage(tr("会员卡被禁用！卡号：") + QString::fromStdString(member->Bh()) +
                      tr("，持卡人：") + QString::fromStdString(member->Name()));
  return nullptr;
}

// For a number that is no card's and not the telephone number of one member alone.
std::shared_ptr<ClsMember> MemberCard::chooseByPhone(const std::string& phone) {
  const auto members = pos_.gMemberSvc.GetMembersByPhone(phone);
  if (members.empty()) {
    screen_.ShowMessage(tr("无效的会员卡!"));
    return nullptr;
  }
  const int chosen = screen_.choose(static_cast<int>(members.size()), [&members](int position) {
    const ClsMember& member = *members[static_cast<std::size_t>(position)];
    const QString caption = QString::fromStdString(member.Bh() + "  " + member.Name());
    return member.Enabled() ? caption : tr("%1（已禁用）").arg(caption);
  });
  return chosen < 0 ? nullptr : members[static_cast<std::size_t>(chosen)];
}

void MemberCard::show(std::shared_ptr<ClsMember> member) {
  state_.curMember = std::move(member);
  try {
    checkout_.ShowMemberInfo();
  } catch (const Failure& failure) {
    screen_.setMemberInfo({});
    screen_.messageBox(QString::fromStdString(failure.what()));
  }
}
