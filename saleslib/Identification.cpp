#include "saleslib/Identification.h"

#include <optional>
#include <utility>

#include "base/Words.h"
#include "saleslib/ClsLogin.h"
#include "saleslib/ClsOperator.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/Journal.h"
#include "saleslib/LoginBrake.h"
#include "saleslib/ShopLink.h"
#include "saleslib/StaffCard.h"
#include "store/Connection.h"

namespace {

constexpr std::int64_t kSecondsOfDay = 86'400;

}  // namespace

// Whoever was dismissed meanwhile would still be let in.
std::string Identification::tooLongAway() const {
  const std::int16_t days = rules_.OfflineLoginDays();
  if (days == 0 || !shopLink(connection_)) return {};
  const std::optional<DateTime> contact = lastContact(connection_);
  const DateTime now = connection_.user().clock();
  if (contact && secondsBetween(*contact, now) <= days * kSecondsOfDay) return {};
  return Words::tr("这台收银机已经超过 %1 天没有连上店铺的服务器，不能登录。请先接通网络。", days);
}

template <class Find>
Identification::Answer Identification::answer(const Find& find) {
  const bool isSlowed = rules_.Approval();
  if (isSlowed && brake_.wait().count() > 0) return {.wait = brake_.wait()};
  if (std::string refused = tooLongAway(); !refused.empty()) return {.refusal = std::move(refused)};
  Answer answer = find();
  answer.person ? brake_.right() : brake_.wrong();
  if (isSlowed && !answer.person) answer.wait = brake_.wait();
  return answer;
}

Identification::Answer Identification::byPassword(std::string_view number,
                                                  std::string_view password) {
  return answer([&] {
    ClsLogin login;
    login.Conn(connection_);
    const bool matches = login.Check(number, password);
    return Answer{matches ? login.Operator() : nullptr, login.ErrText()};
  });
}

Identification::Answer Identification::bySwipe(std::string_view typed) {
  return answer([&] {
    Answer found{staffCardHolder(connection_, typed)};
    if (found.person) return found;
    found.refusal = Words::tr("没有这张员工卡！");
    Journal(connection_).note(EntryKind::kLoginRefused);
    return found;
  });
}
