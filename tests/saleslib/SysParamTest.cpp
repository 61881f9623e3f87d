#include "Shop.h"
#include "saleslib/ClsSysParam.h"

using SysParamTest = Shop;

TEST_F(SysParamTest, EveryParameterHasASoundValueAndOnlySuchAreStored) {
  connection.run(
      "insert into sys_param values ('PointUnit', 'ten'), ('GoldRate', '-1'),"
      " ('RoundJiao', 'x'), ('Unknown', '1'), ('viprate', '0.95')");
  ClsSysParam shop;
  shop.Conn(connection);
  const auto values = [&shop] {
    std::string all;
    for (const auto& each : shop.list())
      if (!each.value.empty()) all += each.name + "=" + each.value + " ";
    return all;
  };
  EXPECT_EQ(values(),
            "StockRule=0 RoundJiao=0 RoundYuan=0 PointUnit=10 GeneralRate=1 VipRate=0.95 "
            "SilverRate=1 GoldRate=1 BackupOnExit=0 CheckPayment=0 GoodsImport=0 PhonePay=0 "
            "OwnerReport=0 Practice=0 JoinShop=0 Approval=0 Shifts=0 Journal=0 OfflineCard=0 "
            "OfflineCardLimit=0 "
            "OfflineReturn=0 OfflineStock=0 OfflineLoginDays=7 ");

  const std::tuple<const char*, std::string, const char*> attempts[] = {
      {"shopname", "小店 'A' %", ""},
      {"ShopName", "a\nb", "ShopName 不能超过200个字符，也不能换行！"},
      {"ReceiptText4", std::string(10000, 'x'), "ReceiptText4 不能超过200个字符，也不能换行！"},
      {"RoundYuan", "是", ""},
      {"RoundYuan", "2", "RoundYuan 只能是 0 或 1（否或是）！"},
      {"PointUnit", "２０", ""},
      {"PointUnit", "1.5", "PointUnit 只能是 0 到 32767 的整数！"},
      {"PointUnit", "99999", "PointUnit 只能是 0 到 32767 的整数！"},
      {"StockRule", "1", ""},
      {"StockRule", "2", "StockRule 只能是 0（可以负库存）或 1（不可以负库存）！"},
      {"GeneralRate", "0.880", ""},
      {"GeneralRate", "0", "GeneralRate 只能是大于 0、不超过 1 的数（九折写 0.9）！"},
      {"GoldRate", "9", "GoldRate 只能是大于 0、不超过 1 的数（九折写 0.9）！"},
      {"Colour", "1", "没有这个参数：Colour"}};
  for (const auto& [name, value, refusal] : attempts) EXPECT_EQ(shop.set(name, value), refusal);
  for (const bool readAgain : {false, true}) {
    if (readAgain) shop.Conn(connection);
    EXPECT_EQ(values(),
              "ShopName=小店 'A' % StockRule=1 RoundJiao=0 RoundYuan=1 PointUnit=20 "
              "GeneralRate=0.88 VipRate=0.95 SilverRate=1 GoldRate=1 BackupOnExit=0 "
              "CheckPayment=0 GoodsImport=0 PhonePay=0 "
              "OwnerReport=0 Practice=0 JoinShop=0 Approval=0 Shifts=0 Journal=0 OfflineCard=0 "
              "OfflineCardLimit=0 "
              "OfflineReturn=0 OfflineStock=0 OfflineLoginDays=7 ");
  }
}
