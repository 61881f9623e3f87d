#include "CheckoutFixture.h"
#include "base/Gbk.h"
#include "base/Text.h"

using testing::StartsWith;

class LineReceiptTest : public CheckoutFixture {
 protected:
  /// What is on the paper, a pulse of the drawer as "<drawer>".
  std::string paper() const {
    const std::string pulse("\x1B\x70\x00\x3C\xFF\r\n", 7);
    const std::string bytes = replaced(fileBytes(folder.file("lpt1")), pulse, "<drawer>\r\n");
    return replaced(gbk::decode(bytes), "\r\n", "\n");
  }
};

TEST_F(LineReceiptTest, WideWithMemberDrawerAndPhone) {
  connect("LPT1", "LPT1");
  originalPrice = 89;
  attachMember();
  receipt.PrintHeader(*bill);
  enter("矿泉水550毫升", "2.00", 3);
  enter("特别特别特别长的名字的饼干😀", "12.50", 0.5);
  enter("😀表情巧克力", "76.25");
  setParameter("PhonePay", "1");
  bill->setTendered(Tender::kPhone, Currency::fromYuan(8));
  payCash("80.5");
  EXPECT_EQ(paper(),
            "                                        \n"
            "              好邻居便利店              \n"
            "       商品名称       单价  数量   金额\n"
            "矿泉水550毫升         2.00     3    6.00\n"
            "特别特别特别长的名字 12.50   0.5    6.25\n"
            "? 表情巧克力         76.25     1   76.25\n"
            "         总    计            4.5   88.50\n"
            "会员卡：8001，累计积分：11.9\n"
            "日期：11-22 流水号：1 收银员：01\n"
            "<drawer>\n"
            "------------销售时刻(09:05)------------\n"
            "原价总计:89应收88.5现金80.5银行卡0.0扫码8.0储值卡0.0找零0.0\n"
            "---------------------------------------\n"
            "谢谢惠顾\n"
            "电话 010-1234\n"
            "\n\n\n\n"
            "                                        \n"
            "              好邻居便利店              \n"
            "       商品名称       单价  数量   金额\n");
}

// A figure too wide for its column takes room from the name, then from the margin.
TEST_F(LineReceiptTest, Narrow) {
  connect("LPT1", "", "", 2);
  receipt.PrintHeader(*bill);
  enter("矿\x1Bp\r\n水", "2.00", 3);  // no command to the printer, no line of its own
  enter("特别特别特别长名字的饼干", "12.50");
  enter("特别特别特别长名字的饼干", "1237.70");
  enter("散装大米", "4.00", 12.34);
  enter("可乐500毫升", "40.00", 10);
  enter("写到单价的水1500ml", "2.00");
  enter("用光了名字的地方", "12345678.90", 1234.5678);
  payCash("20000000000");
  EXPECT_EQ(paper().substr(0, paper().find("\n\n")),
            "                                \n"
            "          好邻居便利店          \n"
            "     商品名称     单价 数量 金额\n"
            "矿 p  水          2.00   3  6.00\n"
            "特别特别特别长名 12.50   1 12.50\n"
            "特别特别特别 1237.70   1 1237.70\n"
            "散装大米        4.00 12.34 49.36\n"
            "可乐500毫升     40.00  10 400.00\n"
            "写到单价的水1500m 2.00   1  2.00\n"
            "12345678.90 1234.5678 15241577639.08\n"
            "总    计 1262.9078 15241579346.64\n"
            "日期：11-22 流水号：1 收银员：01\n"
            "--------销售时刻(09:05)--------\n"
            "原价总计:0应收15241579346.6现金20000000000.0银行卡0.0储值卡0.0找零4758420653.4\n"
            "-------------------------------\n"
            "谢谢惠顾\n"
            "电话 010-1234");
}

TEST_F(LineReceiptTest, WithoutLinePrintingOnlyTheDrawerOpens) {
  connect("USB", "LPT1");
  enter("水", "1");
  payCash("1");
  receipt.FeedLines(*bill);
  EXPECT_EQ(paper(), "<drawer>\n");
}

// A printer that is off costs one message. Switched on in the middle of a bill, it prints that
// bill from its first line on; a bill that was over before is not printed any more.
TEST_F(LineReceiptTest, APrinterThatWasOffPrintsWholeBills) {
  connect("LPT1", "", "", 2);
  const auto plug = [this](const std::string& path) { pos.configIni.write("Ports", "LPT1", path); };
  plug(folder.path().string());
  enter("糕", "1");
  enter("饼", "1");
  payCash("2");
  EXPECT_THAT(screen.said(), StartsWith("端口 LPT1 打不开："));
  plug(folder.file("lpt1"));
  enter("茶", "4");
  payCash("4");
  EXPECT_THAT(paper(), StartsWith("                                \n"
                                  "          好邻居便利店          \n"
                                  "     商品名称     单价 数量 金额\n"
                                  "茶                4.00   1  4.00\n"
                                  "       总    计"));

  plug(folder.path().string());
  enter("水", "1");
  enter("茶", "1");
  plug(folder.file("again"));
  enter("糖", "1");
  EXPECT_EQ(fileBytes(folder.file("again")), "") << "not tried again before the end of the bill";
  payCash("3");
  EXPECT_THAT(gbk::decode(fileBytes(folder.file("again"))),
              StartsWith("水                1.00   1  1.00\r\n"
                         "茶                1.00   1  1.00\r\n"
                         "糖                1.00   1  1.00\r\n"
                         "       总    计"));
  EXPECT_THAT(screen.said(), StartsWith("端口 LPT1 打不开："));
}
