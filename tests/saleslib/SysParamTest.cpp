#include "Shop.h"
#include "saleslib/ClsSysParam.h"

using SysParamTest = Shop;

TEST_F(SysParamTest, EveryParameterHasASoundValueWhenNoneIsSet) {
  connection.run(
      "insert into sys_param values ('PointUnit', 'ten'), ('GoldRate', '-1'),"
      " ('RoundJiao', 'x'), ('Unknown', '1'), ('viprate', '0.95')");
  ClsSysParam shop;
  shop.Conn(connection);
  EXPECT_EQ(shop.ShopName() + shop.ReceiptText1() + shop.ReceiptText6(), "");
  EXPECT_EQ(shop.StockRule(), 0);
  EXPECT_FALSE(shop.RoundJiao() || shop.RoundYuan() || shop.BackupOnExit() || shop.CheckPayment());
  EXPECT_EQ(shop.PointUnit(), 10);
  EXPECT_EQ(shop.GeneralRate(), 1.0);
  EXPECT_EQ(shop.GoldRate(), yuan("1"));
  EXPECT_EQ(shop.VipRate(), yuan("0.95"));
}

TEST_F(SysParamTest, OnlyValuesOfTheParametersKindAreStored) {
  ClsSysParam shop;
  shop.Conn(connection);
  const struct {
    const char* name;
    std::string value;
    const char* kept;  ///< nullptr: refused
  } attempts[] = {
      {"shopname", "小店 'A' %", "小店 'A' %"},
      {"ShopName", "a\nb", nullptr},
      {"ReceiptText4", std::string(10000, 'x'), nullptr},
      {"RoundYuan", "是", "1"},
      {"RoundYuan", "2", nullptr},
      {"PointUnit", "２０", "20"},
      {"PointUnit", "1.5", nullptr},
      {"PointUnit", "99999", nullptr},
      {"StockRule", "1", "1"},
      {"StockRule", "2", nullptr},
      {"GeneralRate", "0.880", "0.88"},
      {"GeneralRate", "0", nullptr},
      {"GoldRate", "9", nullptr},
      {"Colour", "1", nullptr},
  };
  for (const auto& [name, value, kept] : attempts) {
    EXPECT_EQ(shop.set(name, value).empty(), kept != nullptr) << name << value.substr(0, 9);
    if (kept != nullptr) {
      EXPECT_EQ(stored("select value from sys_param where name = '" + std::string(name) + "'"),
                kept);
    }
  }
  EXPECT_EQ(shop.ShopName(), "小店 'A' %");
  EXPECT_EQ(shop.PointUnit(), 20);
}
