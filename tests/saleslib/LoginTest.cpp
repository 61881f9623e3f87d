#include "Shop.h"
#include "saleslib/ClsLogin.h"
#include "saleslib/ClsOperator.h"

using LoginTest = Shop;

TEST_F(LoginTest, OnlyTheNumberAndPasswordOfAnOperatorLetIn) {
  const std::string odd = std::string("a\0b'", 4) + std::string(10000, 'x');
  ClsOperator cashier;
  cashier.Init(connection, 1);
  cashier.setName("张三");
  cashier.setCode("01");
  cashier.setPassword(odd);
  cashier.setRights(ClsRights({"sell"}));
  cashier.Save();
  EXPECT_THAT(stored("password from operators"), testing::StartsWith("$argon2id$"));

  ClsLogin login;
  login.Conn(connection);
  const std::tuple<const char*, std::string, bool> attempts[] = {
      {"1", odd + "x", false}, {"1", odd.substr(0, 1), false}, {"1", "", false}, {"2", odd, false},
      {" 1", odd, false},      {"65537", odd, false},          {"", odd, false}, {"1", odd, true}};
  for (const auto& [number, password, accepted] : attempts) {
    EXPECT_EQ(login.Check(number, password), accepted) << number;
    EXPECT_EQ(login.ErrText(), accepted ? "" : "用户编号或密码不正确！");
    ASSERT_EQ(login.Operator() != nullptr, accepted);
  }
  EXPECT_FALSE(login.Operator()->Rights().HasRight("returns"));
  login.Operator()->setPassword("");
  login.Operator()->Save();
  EXPECT_FALSE(login.Check("1", odd));
  EXPECT_TRUE(login.Check("1", ""));
  login.Operator()->setOnline(0);
  login.Operator()->Save();
  EXPECT_TRUE(login.Check("1", "")) << "a stored state leaves the password alone";
}
