#include "takings/ShiftPaper.h"

#include "ShopFixture.h"
#include "base/Gbk.h"

namespace {

std::string textOf(const ShiftPaper& paper, int columns) {
  std::string text;
  for (const std::string& line : paper.lines) {
    EXPECT_LE(gbk::width(line), static_cast<std::size_t>(columns)) << line;
    text += line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
  }
  return text.substr(0, text.find_last_not_of('\n') + 1);
}

Currency yuan(const char* text) {
  return Currency::parse(text).value();
}

}  // namespace

struct ShiftPaperTest : ShopFixture {
  ShiftPaperTest() {
    shift.number = 12;
    shift.opened = {{2026, 11, 22}, 7, 0, 5};
    shift.openedBy = "张三";
    shift.cashFloat = yuan("200");
    shift.takings.bills = {6, yuan("94.8")};
    shift.takings.tendered = {
        {{4, yuan("23.8")}, {2, yuan("42")}, {}, {1, yuan("8.5")}, {1, yuan("0.5")}}};
    shift.takings.cashOut = {1, yuan("120.5")};
    shift.moves = {{12, {{2026, 11, 22}, 9, 5, 0}, "张三", yuan("-120.5"), "付第四季度水费和电费"}};
    shift.deeds = {2, {1, yuan("45.6")}, {3, yuan("12")}, 4};
    shift.journalHash = "0123456789abcdef0123456789abcdef0123456789abcdef0123456789abcdef";
  }
  Shift shift;
};

TEST_F(ShiftPaperTest, AClosedShiftFitsTheNarrowPaperAndAReprintSaysSo) {
  shift.closed = DateTime{{2026, 11, 23}, 0, 30, 0};
  shift.closedBy = "李四";
  shift.counts = 2;
  shift.counted.pieces = {1, 0, 0, 0, 0, 3, 0, 2};
  EXPECT_EQ(textOf(shiftPaper(shift, ShiftPaperKind::kReprint, now, pos.gSysParam, 32), 32),
            R"(          好邻居便利店
        结班表 第 12 班
            （重打）
开班 2026-11-22 07:00:05
     张三
结班 2026-11-23 00:30:00
     李四
打印 2026-11-22 09:05:03
--------------------------------
单据            6 笔       94.80
  现金          4 笔       23.80
  银行卡        2 笔       42.00
  储值卡        1 笔        8.50
  优惠          1 笔        0.50
充值收现金      0 笔        0.00
退货退现金      0 笔        0.00
存入现金        0 笔        0.00
取出现金        1 笔      120.50
  09:05 付第四季度水费和 -120.50
--------------------------------
不收款开钱箱    2 次
撤消单据        1 笔       45.60
删除商品行      3 行       12.00
授权            4 次
--------------------------------
备用金                    200.00
钱箱应有                  103.30
  100 元 × 1             100.00
  1 元 × 3                 3.00
  0.1 元 × 2               0.20
清点（第 2 次）           103.20
短款                       -0.10
--------------------------------
日志校验值
0123 4567 89ab cdef 0123 4567
89ab cdef 0123 4567 89ab cdef
0123 4567 89ab cdef

签名)");
}

TEST_F(ShiftPaperTest, AReadingOnWidePaperShowsNoCountAndSlipsTellTheReason) {
  constexpr int kWide = 40;
  const std::string reading =
      textOf(shiftPaper(shift, ShiftPaperKind::kReading, now, pos.gSysParam, kWide), kWide);
  EXPECT_THAT(reading, testing::StartsWith(R"(              好邻居便利店
           班次读数 第 12 班
              （没有结班）
)"));
  EXPECT_THAT(reading, Not(testing::HasSubstr("清点")));
  shift.moves[0].reason += "，明天补票据";
  EXPECT_EQ(textOf(cashSlip(shift.moves[0], pos.gSysParam, 32), 32), R"(          好邻居便利店
            取出现金
第 12 班 2026-11-22 09:05:00
收银员 张三
金额                      120.50
原因 付第四季度水费和电费，明天
补票据

签名)");
}
