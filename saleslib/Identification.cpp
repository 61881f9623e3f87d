#include "saleslib/Identification.h"

#include "base/Words.h"
#include "saleslib/ClsLogin.h"
#include "saleslib/ClsOperator.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/Journal.h"
#include "saleslib/LoginBrake.h"
#include "saleslib/StaffCard.h"

template <class Find>
Identification::Answer Identification::answer(const Find& find) {
  const bool isSlowed = rules_.Approval();
  if (isSlowed && brake_.wait().count() > 0) return {.wait = brake_.wait()};
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
