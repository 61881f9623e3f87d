#include "checkout/PageReceipt.h"

#include "CheckoutFixture.h"

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsSupersetOf;

class PageReceiptTest : public CheckoutFixture {
 protected:
  void settled(const char* cash, const char* bankCard) {
    bill->setCash(Currency::parse(cash).value());
    bill->setBankCard(Currency::parse(bankCard).value());
  }
  /// The receipt's texts with their places: "x,y text".
  std::vector<std::string> printed(int paperModel, const char* option) {
    std::vector<std::string> placed;
    const PageDocument page =
        pageReceipt(*bill, facts(), pos.gSysParam, Paper::ofModel(paperModel), option);
    for (const PlacedText& text : page.texts)
      placed.push_back(std::to_string(text.x) + "," + std::to_string(text.y) + " " + text.text);
    return placed;
  }
};

TEST_F(PageReceiptTest, WholeOnWidePaper) {
  attachMember();
  originalPrice = 89;
  enter("矿泉水五百五十毫升", "4.00", 2);
  enter("茶", "80.50");
  bill->setFavorable(Currency::fromYuan(1));
  bill->setTendered(Tender::kPhone, Currency::fromYuan(5));
  settled("75", "10");
  EXPECT_THAT(
      printed(1, "打印商品前7个字简称"),
      ElementsAre(
          "1,0               好邻居便利店              ", "1,440 商品名称          单价 数量 金额",
          "1,700 矿泉水五百五十 ", "1200,700  4.0 ", "1900,700 2", "2300,700 8.0 ", "1,1100 茶 ",
          "1200,1100  80.5 ", "1900,1100 1", "2300,1100 80.5 ", "1,1366 总金额合计", "1900,1366 3",
          "2300,1366 88.5", "1,1582 会员卡:8001 累计积分3.00", "1,1848 流水号:1 收银员:01",
          "1,2114 ----------2026-11-22 09:05:03----------", "1,2380 原价总计89.0   应收88.5",
          "1,2646 优惠后实收87.5", "1,2912 现金75.0 银行卡10.0 扫码5.0", "1,3178 总优惠1.5 找零2.5",
          "1,3444 谢谢惠顾", "1,3710 欢迎光临", "1,3976 ", "1,4242 电话 010-1234", "1,4508 ",
          "1,4774 ", "1,5040 "));
}

TEST_F(PageReceiptTest, RowsFollowTheLayout) {
  enter("茶", "80.55", 1.5);
  settled("200", "0");
  const std::pair<const char*, const char*> firstTexts[] = {
      {"打印编码+商品全称", "1,700 1001  茶"},
      {"打印商品全称", "1,700 茶 "},
      {"打印商品全称+折扣", "1,700 茶 折扣:1"},
      {"", "1,706 总金额合计"}};
  for (const auto& [option, text] : firstTexts) EXPECT_EQ(printed(2, option).at(2), text);
  EXPECT_THAT(printed(2, "打印商品全称"),
              IsSupersetOf({"1200,880  80.6 ", "1900,880 1.5", "2300,880 120.8 "}));
}

TEST_F(PageReceiptTest, ALongBillContinuesOnTheSameRoll) {
  for (int i = 0; i < 90; ++i) enter("糖", "1.00");
  settled("90", "0");
  EXPECT_THAT(printed(1, "打印商品全称"), IsSupersetOf({"1,36300 糖 ", "1,36746 总金额合计"}));
}

TEST_F(PageReceiptTest, PaidByStoredValueCard) {
  enter("茶", "80.50");
  originalPrice = 81;
  bill->setCardPay(Currency::parse("80.5").value());
  bill->setCardNo("8001");
  settled("0", "0");
  const auto placed = printed(2, "");
  EXPECT_THAT(placed.at(7), EndsWith(" 原价总计81.0   应收80.5"));
  EXPECT_THAT(placed.at(8), EndsWith(" 储值卡号8001刷卡金额80.5\"优惠0.5"));
}
