#include "WatchedTill.h"

using testing::HasSubstr;

/// From the settle key to the next bill.
using CheckoutTest = WatchedTill;

TEST_F(CheckoutTest, ASaleIsStoredSummedUpPrintedAndFollowedByTheNextBill) {
  setParameter("PhonePay", "1");
  pos.gPosSet.PPort = pos.gPosSet.MBPort = "LPT1";
  reopen();
  expect(R"(
  F2:8001 balloon:80 → 1 气球 80.00 1 1 80.00 0 | 1件/80/80.00元 | 会员：王芳，办卡日期：2026-01-02，累计消费：0.00
    | 1004:-1 | 2:1004x1=80 | 卡号？ | ^价80.00
  balloon:4.25 Up 2 → 2 气球 4.25 2 1 8.50 -2 | 3 | [3] | 3件/88/88.50元 | 1004:-3 | 2:1004x2=8.5
    | ^价4.25 ^价4.25 | 印：气球 80.00 1 80.00 /
  F1:优惠2,银行卡40,扫码10,100 → -行1 | [] | 流水号：3… | 上一单：金额 88.5实收现金100.0银行卡40.0扫码10.0储值卡0.0找零63.5 优惠2
    | 应收88.5 现金100银行卡40扫码10储值卡0优惠2找零63.5元 | -会员 | 单2:10 88.5 收100 40 10 0 惠2 员1 | 单3:空
    | 卡8001:88.5 88.5 12 | -行2 | -行3 | ^计88.50 ^收100.00 ^找11.50
    | 印：气球 4.25 2 8.50 / 总 计 3 88.50 / 会员卡：8001，累计积分：11.9 / 日期：11-22 流水号：2 收银员：01 / <drawer> /
    ------------销售时刻(09:05)------------ / 原价总计:88应收88.5现金100.0银行卡40.0扫码10.0储值卡0.0找零63.5 /
    --------------------------------------- / 谢谢惠顾 / 电话 010-1234 / / / / / / 好邻居便利店 / 商品名称 单价 数量
    金额 /
  )");
}

// A bill of 10.00 that is paid with 12.00 of one kind, or by card; the last one by telephone before
// the shop gave that up again: no figure of the bill is hidden.
TEST_F(CheckoutTest, EachTenderIsStoredAndNamedWhereverTheOthersAre) {
  expect(R"(
  PhonePay=0 F1:12 → -行1 | 流水号：2… | 上一单：金额 10.0实收现金12.0银行卡0.0储值卡0.0找零2.0 优惠0
    | 应收10 现金12银行卡0储值卡0优惠0找零2元 | 单1:10 10 收12 0 0 0 惠0 员0 | 单2:空 | ^计10.00 ^收12.00 ^找2.00
  PhonePay=0 F1:银行卡12,0 → -行1 | 流水号：3… | 上一单：金额 10.0实收现金0.0银行卡12.0储值卡0.0找零2.0 优惠0
    | 应收10 现金0银行卡12储值卡0优惠0找零2元 | 单2:10 10 收0 12 0 0 惠0 员0 | 单3:空 | ^计10.00 ^收0.00 ^找-10.00
  PhonePay=0 F1:储值卡 → -行1 | 流水号：4… | 上一单：金额 10.0实收现金0.0银行卡0.0储值卡10.0找零0.0 优惠0
    | 应收10 现金0银行卡0储值卡10优惠0找零0元 | 单3:10 10 收0 0 0 10 惠0 员0 | 单4:空 | 卡8001:78.5 0 3
    | 储值卡消费成功！余额：78.5 | ^计10.00 ^收0.00 ^找-10.00
  PhonePay=0 F1:优惠12,0 → -行1 | 流水号：5… | 上一单：金额 10.0实收现金0.0银行卡0.0储值卡0.0找零2.0 优惠12
    | 应收10 现金0银行卡0储值卡0优惠12找零2元 | 单4:10 10 收0 0 0 0 惠12 员0 | 单5:空 | ^计10.00 ^收0.00 ^找-10.00
  PhonePay=1 F1:扫码12,0 → -行1 | 流水号：6… | 上一单：金额 10.0实收现金0.0银行卡0.0扫码12.0储值卡0.0找零2.0 优惠0
    | 应收10 现金0银行卡0扫码12储值卡0优惠0找零2元 | 单5:10 10 收0 0 12 0 惠0 员0 | 单6:空 | ^计10.00 ^收0.00 ^找-10.00
  PhonePay=1 F1:12 → -行1 | 流水号：7… | 上一单：金额 10.0实收现金12.0银行卡0.0扫码0.0储值卡0.0找零2.0 优惠0
    | 应收10 现金12银行卡0扫码0储值卡0优惠0找零2元 | 单6:10 10 收12 0 0 0 惠0 员0 | 单7:空 | ^计10.00 ^收12.00 ^找2.00
  PhonePay=0 F1:扫码12,0 → -行1 | 流水号：8… | 上一单：金额 10.0实收现金0.0银行卡0.0扫码12.0储值卡0.0找零2.0 优惠0
    | 应收10 现金0银行卡0扫码12储值卡0优惠0找零2元 | 单7:10 10 收0 0 12 0 惠0 员0 | 单8:空 | ^计10.00 ^收0.00 ^找-10.00
  )",
         "balloon:10");
}

TEST_F(CheckoutTest, ALeftDialogKeepsTheBillWithItsFigures) {
  setParameter("RoundYuan", "1");
  expect(R"(
  balloon:12.50 Up F1:优惠2 → 1 气球 12.50 1 1 12.50 0 | 1件/12/12元 | 1004:-1 | 1:1004x1=12.5
    | ^价12.50 ^计12.00
  F1:优惠2 → ^计12.00
  balloon:12.50 F1:优惠3 → 2 气球 12.50 1 1 12.50 -1 | 2件/24/25元 | 1004:-2 | 1:1004x1=12.5
    | ^价12.50 ^计25.00
  balloon:12.50 F1:优惠3 → 3 气球 12.50 1 1 12.50 -2 | 3件/36/38元 | 1004:-3 | 1:1004x1=12.5
    | ^价12.50 ^计38.00
  )");
}

TEST_F(CheckoutTest, AMemberIsCreditedWithTheSale) {
  const char* const cases[][3] = {{"10", "95.00", "88.5 95 12"},    // 9.5 + 3: halves to even
                                  {"0", "5.00", "88.5 100 12"},     // no points without a unit
                                  {"1", "40000", "88.5 40100 12"},  // more than points can hold
                                  {"1", "922337203685477", "88.5 40100 12"}};  // or purchases
  for (const auto& [unit, price, credited] : cases) {
    setParameter("PointUnit", unit);
    after(QString("F2:8001 balloon:") + price);
    const std::string changes = after("F1");
    EXPECT_THAT(changes, HasSubstr(":10 ")) << "a sale is not lost with its points";
    EXPECT_EQ(stored("card || ' ' || total_spent || ' ' || points as v from member"), credited);
  }
  breakStore("update on member");
  EXPECT_THAT(after("F2:8001 balloon:95 F1"), HasSubstr("单5:10 95 收95 0 0 0 惠0 员1"));
}

TEST_F(CheckoutTest, FiguresThatDoNotFitAreRefusedAndThoseOfTheFileSaid) {
  expect(R"(
  water F1:优惠900000000000000,900000000000000,银行卡900000000000000,储值卡 → 1 矿泉水 2.50 1 1 2.50 100
    | 1件/2/2.50元 | 1001:99 | 1:1001x1=2.5 | 没有收款：金额太大，找零算不出来。|没有收款：金额太大，找零算不出来。 | ^价2.50 ^计2.50
  )");
  after("F12");
  pos.gConn->runScript(  // as an earlier program stored it
      "insert into sell (sell_time, operator_id, state, amount, cash, bank_card) values"
      " ('2026-11-22 09:05:03', 1, 1, -1, 922337203685477, 1)");
  expect("Esc → 离开 | -单2");
  open();
  EXPECT_EQ(after(""),
            "流水号：4… | 上一单：金额 -1.0实收现金922337203685477.0银行卡1.0储值卡0.0找零超出范围 "
            "优惠0 | 单4:空");
}

TEST_F(CheckoutTest, APaidBillThatCannotBeStoredIsWithdrawnBeforeAnythingElseIsStored) {
  pos.gPosSet.PPort = "USB";
  pos.gPosSet.printAmount = "直接打印1联";
  reopen();
  after("water water");
  breakStore("update on sell when new.state = 1");
  breakStore("delete on sell", "stuck");
  int asked = 0;
  till.asked = [&] {
    EXPECT_EQ(stored("count(*) as v from sell"), "1") << "no other bill opened";
    if (++asked == 2) mendStore("stuck");
  };
  expect(R"(
  F1:储值卡 → -行1 | 流水号：3… | 1001:100 | 单3:空 | 卡8001:83.5 0 3 | -单2 | -目1 | -目2 | -行2
    | 储值卡消费成功！余额：83.5 |保存单据出错，请重新录入本单！/储值卡 8001 已扣款 5
    元。|:不能开始下一单：数据与已有的记录冲突：disk/排除原因后再试一次吗？选“否”将退出程序。
    是|:不能开始下一单：数据与已有的记录冲突：disk/排除原因后再试一次吗？选“否”将退出程序。 是 | ^计5.00 ^收0.00
  )");
}

TEST_F(CheckoutTest, NoPaymentIsTakenIntoAFileThatLostItsName) {
  const std::filesystem::path file = pos.gConn->source().path;
  after("water");
  std::filesystem::rename(file, folder.file("away"));
  till.answersYes = false;
  expect(R"(
  F1 → 结束
    | :数据文件 ~/data/shop.db 在使用中被删除、移走或换成了别的文件，不能再保存。请把原来的文件放回原处。放不回时请退出程序，退出时会备份到此为止的账目，可用
    tilladmin restore 恢复。/文件已经放好，继续收款吗？选“否”将退出程序。 是
  )");
  till.answersYes = true;
  till.asked = [&] { std::filesystem::rename(folder.file("away"), file); };
  EXPECT_THAT(after("F1:3"), HasSubstr("单1:10 2.5 收3 "));
}

TEST_F(CheckoutTest, AnOperatorRemovedMeanwhileSettlesAndOpensNoFurtherBill) {
  after("water");
  pos.gConn->runScript("delete from operators where id = 1");
  till.answersYes = false;
  expect(R"(
  F5 → 操作员“张三”已被删除，不能再开单。
  F1 → -行1 | 应收2.5 现金2.5银行卡0储值卡0优惠0找零0元 | 结束 | 单1:10 2.5 收2.5 0 0 0 惠0 员0
    | :不能开始下一单：操作员“张三”已被删除，不能再开单。/排除原因后再试一次吗？选“否”将退出程序。 是 | ^计2.50 ^收2.50
  )");
}

TEST_F(CheckoutTest, PageReceiptsFollowTheMode) {
  const struct {
    const char *port, *mode;
    bool answer;
    std::size_t pages;
    const char* question;
  } cases[] = {{"USB", "不打印", true, 0, ""},
               {"USB", "直接打印1联", true, 1, ""},
               {"USB", "直接打印3联", true, 3, ""},
               {"USB", "打印前提示默认'是'", true, 1, "提示:确定要打印吗 是"},
               {"USB", "打印前提示默认'否'", false, 0, "提示:确定要打印吗 否"},
               {"", "直接打印3联", true, 0, ""}};
  for (const auto& each : cases) {
    till.answersYes = each.answer;
    pos.gPosSet.PPort = each.port;
    pos.gPosSet.printAmount = each.mode;
    reopen();
    enter(kWater);
    press(kF1);
    EXPECT_EQ(std::exchange(ports.pages, {}).size(), each.pages) << each.mode;
    EXPECT_EQ(till.said(), each.question);
  }
}
