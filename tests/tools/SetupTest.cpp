#include <filesystem>

#include "Owner.h"
#include "saleslib/ClsLogin.h"
#include "saleslib/ClsOperator.h"

static const char* const kDialog = R"(
全部答完才建立数据文件。直接回车用方括号里的答案；按 Ctrl+D 放弃。
1 新店铺，2 演示店铺，3 从备份恢复 [1]：
请写 1 到 3。
1 新店铺，2 演示店铺，3 从备份恢复 [1]：
店名，小票的第一行：
小票文字一 [欢迎光临]：
小票文字二：
小票文字三 [谢谢惠顾，欢迎再来！]：
小票文字四：
小票文字五：
小票文字六：
应收：1 不舍入，2 舍入到角，3 舍入到元 [2]：
店主的姓名，用户编号（登录时输入）是 1：
操作员的姓名不能空着，也不能超过 255 个字。
店主的姓名，用户编号（登录时输入）是 1：
第一位收银员（不写就没有）的姓名，用户编号（登录时输入）是 2：
商品资料的 CSV 文件（不写就没有）：
没有这个文件，或者不是普通文件。
商品资料的 CSV 文件（不写就没有）：
条码和价格的 CSV 文件（不写就没有）：
商品条码（不写就不再录入）：
codes.csv：什么也没有导入：
第 2 行：商品资料 spda 里没有编码 A1，这样的条码卖了也查不到；请先导入 spda，或者在同一个命令里一起导入
请重新写商品。
商品资料的 CSV 文件（不写就没有）：
条码和价格的 CSV 文件（不写就没有）：
商品条码（不写就不再录入）：
  名称：
  零售价：
零售价应是不小于 0 的金额。这一种没有录入。
商品条码（不写就不再录入）：
  名称：
  零售价：
商品条码（不写就不再录入）：
商品：2 个条码
退出程序时备份数据文件：0 否，1 是 [1]：
收款、价格、折扣像打错时先问一声：0 否，1 是 [1]：
收手机扫码付款：0 否，1 是 [1]：
PhonePay 只能是 0 或 1（否或是）！
收手机扫码付款：0 否，1 是 [1]：
)";

/// An owner who has no data file yet, and is asked for a shop.
struct SetupTest : testing::Test, Owner {
  SetupTest() {
    write("goods.csv", "f_spbm,f_spmc\nA1,白糖\n");
    write("codes.csv", "sptm,spbm,spmc,xsdj\n690101,A1,白糖,4.5\n");
  }
  std::ptrdiff_t filesLeft() const {
    return std::distance(std::filesystem::directory_iterator(folder.path()), {});
  }
  /// A line each; some of the answers are mistakes, after which the question comes again.
  std::vector<std::string> answers() const {
    const std::string goods = folder.file("goods.csv"), codes = folder.file("codes.csv");
    return {"4",      "",       "好邻居", "",     "光明路 18 号",
            "",       "",       "",       "",     "3",
            "",       "王店主", "秘密",   "小李", "222",
            "none",   "",       codes,    "",              // codes without their goods
            goods,    codes,    "690202", "红糖", "五块",  // a price
            "690202", "红糖",   "5.5",    "",     "",
            "否",     "看情况", ""};
  }
  void type(const std::vector<std::string>& lines, std::size_t count) {
    typed.clear();
    for (std::size_t line = 0; line < count; ++line) typed += lines[line] + "\n";
  }
  std::string all(const std::string& query) const {
    const std::unique_ptr<Connection> connection = open();
    std::string text;
    for (Rows rows = connection->query(query.c_str()); rows.next();)
      text += rows.text("a") + "=" + rows.text("b") + " ";
    return text;
  }
};

TEST_F(SetupTest, AsksUntilTheAnswersMakeAShop) {
  type(answers(), answers().size());
  expect(0, "店铺已建好", "setup @");
  const std::string path = folder.path().string() + "/";
  for (std::size_t at; (at = err.find(path)) != std::string::npos;) err.erase(at, path.size());
  EXPECT_EQ("\n" + err, kDialog);
  EXPECT_EQ(all("select name a, value b from sys_param order by name"),
            "BackupOnExit=1 CheckPayment=0 PhonePay=1 ReceiptText1=欢迎光临 ReceiptText2=光明路 18 "
            "号 ReceiptText3=谢谢惠顾，欢迎再来！ ReceiptText4= ReceiptText5= ReceiptText6= "
            "RoundJiao=0 RoundYuan=1 ShopName=好邻居 ");
  EXPECT_EQ(all("select sptm a, xsdj b from tmda order by sptm"), "690101=4.5 690202=5.5 ");
  EXPECT_EQ(all("select f_spbm a, f_spmc b from spda order by id"), "A1=白糖 690202=红糖 ");
  for (const auto& [number, password] : {std::pair("1", "秘密"), std::pair("2", "222")}) {
    const std::unique_ptr<Connection> connection = open();
    ClsLogin login;
    login.Conn(*connection);
    ASSERT_TRUE(login.Check(number, password)) << number;
    EXPECT_TRUE(login.Operator()->Rights().HasRight("sell")) << number;
  }
  expect(1, "不会覆盖", "setup @");
}

TEST_F(SetupTest, LeavesNothingWhereverTheAnswersEnd) {
  for (std::size_t count = 0; count < answers().size(); ++count) {
    type(answers(), count);
    expect(1, "没有", "setup @");
    ASSERT_EQ(filesLeft(), 2) << count;
  }
}

TEST_F(SetupTest, MakesTheDemoShopOrTakesABackup) {
  typed = "2\n";
  expect(0, "", "setup @");
  const std::string goods = value("select count(*) as value from tmda");
  std::filesystem::rename(shop, folder.file("backup"));
  write("noise", "no backup");
  typed = "3\n" + folder.file("noise") + "\n";
  expect(1, "", "setup @");
  EXPECT_FALSE(std::filesystem::exists(shop));
  typed = "3\n\n" + folder.file("backup") + "\n";
  expect(0, "", "setup @");
  EXPECT_EQ(value("select count(*) as value from tmda"), goods);
}
