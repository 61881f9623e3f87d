#include "TillFixture.h"

using testing::ElementsAre;
using testing::HasSubstr;

class ItemLookupTest : public TillFixture {
 protected:
  ItemLookupTest() { open(); }
  std::string line() const {
    const ClsSellItem* current = session.sale().line();
    return current ? current->SpCode() + "/" + current->SpName() + "/" + current->EntryCode()
                   : "none";
  }
};

TEST_F(ItemLookupTest, findsByBarcodeSpecificationAndItemNumber) {
  const std::pair<const char*, const char*> cases[] = {
      {"６９０１２３４５６７８９２", "1001/矿泉水/6901234567892"},
      {"８０ｇ", "1003/红茶/80g"},
      {"QB-0", "2001/铅笔/QB-01"},
      {"50g", "1002/绿茶/50g"},  // a specification before the item number X50g
      {"大", "none"},            // one character starts no look-up
  };
  for (const auto& [typed, found] : cases) {
    enter(typed);
    EXPECT_EQ(line(), found) << typed;
    EXPECT_EQ(till.said(), "");
    press(kF4);
  }
}

TEST_F(ItemLookupTest, letsTheCashierChooseAmongSeveral) {
  till.choice = 1;
  enter(kDouble);
  EXPECT_THAT(till.offered, ElementsAre("绿茶  杭州  库存：50", "红茶  安徽  库存：0"));
  EXPECT_EQ(line(), "1003/红茶/6900000000029");
  till.choice = -1;
  enter(kDouble);
  EXPECT_EQ(till.said(), "没有找到条码为：6900000000029的商品");
  EXPECT_EQ(line(), "none") << "the line before was committed";
  till.choice = 1;
  setParameter("CheckPayment", "1");
  till.answers = {"", "十元", "-3", QString(10'000, '9'), "０0001234", "100000", "３.5"};
  enter("-0");
  EXPECT_EQ(line(), "2002/橡皮/XP-02");
  EXPECT_EQ(cell(1, BillRow::kPrice), "3.50") << "asked for until it is a price";
  EXPECT_EQ(till.said(), ":单价是 1234.00 元，确定吗？ 否|:单价是 100000.00 元，确定吗？ 否");
}

TEST_F(ItemLookupTest, saysWhyAFieldCannotBeReadAndFindsNothing) {
  enter("6900000000999");
  EXPECT_THAT(till.said(), HasSubstr("xsdj"));
  EXPECT_EQ(lines(), "0");
}
