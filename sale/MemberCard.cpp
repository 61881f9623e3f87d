#include "sale/MemberCard.h"

#include "platform/QtText.h"
#include "sale/Sale.h"
#include "sale/SaleScreen.h"
#include "sale/SaleTexts.h"
#include "saleslib/CardNumber.h"
#include "saleslib/ClsMemberSvc.h"

void MemberCard::AttachMember() {
  if (!sale_.isEmpty()) {
    screen_.ShowMessage(tr("会员卡只能在还没有开始销售时加入！"));
    return;
  }
  const QString typed = screen_.prompt(tr("会员卡"), tr("输入会员卡号或电话："));
  const std::string number = typed.toStdString();
  std::shared_ptr<ClsMember> member;
  guarded([&] {
    if (!memberNumber(number).empty()) member = find(number);
    return member != nullptr;
  });
  sale_.bill()->setMemberId(member ? member->Id() : 0);
  show(std::move(member));
}

std::shared_ptr<ClsMember> MemberCard::find(const std::string& number) {
  std::shared_ptr<ClsMember> member = members_.GetMember(number);
  if (!member) member = chooseByPhone(number);
  if (!member || member->Enabled()) return member;
  screen_.ShowMessage(
      tr("会员卡被禁用！卡号：%1，持卡人：%2").arg(qtText(member->Bh()), qtText(member->Name())));
  return nullptr;
}

// For a number that is no card's and not the telephone number of one member alone.
std::shared_ptr<ClsMember> MemberCard::chooseByPhone(const std::string& phone) {
  const auto members = members_.GetMembersByPhone(phone);
  if (members.empty()) {
    screen_.ShowMessage(tr("无效的会员卡!"));
    return nullptr;
  }
  const int chosen = screen_.choose(static_cast<int>(members.size()), [&members](int position) {
    const ClsMember& member = *members[static_cast<std::size_t>(position)];
    const QString caption = qtText(member.Bh() + "  " + member.Name());
    return member.Enabled() ? caption : tr("%1（已禁用）").arg(caption);
  });
  return chosen < 0 ? nullptr : members[static_cast<std::size_t>(chosen)];
}

void MemberCard::show(std::shared_ptr<ClsMember> member) {
  QString info;
  guarded([&] {
    if (member) info = sale_texts::memberInfo(*member, books_.lastPurchase(*member).get());
    return member != nullptr;
  });
  sale_.attach(std::move(member), info);
}
