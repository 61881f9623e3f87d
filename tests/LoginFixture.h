#pragma once

#include "Hands.h"
#include "ShopFixture.h"

/// The shop before anybody is logged in: operator 1 may sell with password 111, operator 2 may not
/// with 222.
class LoginFixture : public ShopFixture {
 protected:
  LoginFixture() {
    pos.gOperator = nullptr;
    for (const std::int16_t number : {std::int16_t{1}, std::int16_t{2}}) {
      ClsOperator person;
      person.Init(*pos.gConn, number);
      person.setPassword(number == 1 ? "111" : "222");
      if (number == 1) person.setRights(ClsRights({kRightSell}));
      person.Save();
    }
  }
  /// Number, Enter, password, Enter.
  Hands& logIn(const QString& number, const QString& password) {
    return hands.type("frmLogin", number + "\n" + password + "\n");
  }

  Hands hands;
};
