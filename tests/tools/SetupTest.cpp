#include <filesystem>

#include "Owner.h"
#include "base/FileError.h"
#include "base/Text.h"
#include "saleslib/ClsLogin.h"
#include "saleslib/ClsOperator.h"
#include "shop/NewShop.h"
#include "shop/Refusal.h"

static const char* const kDialog = R"(
全部答完才建立店铺。直接回车用方括号里的答案；按 Ctrl+D 放弃。
1 新店铺，2 演示店铺，3 从备份恢复 [1]：
请写 1 到 3。
1 新店铺，2 演示店铺，3 从备份恢复 [1]：
店名，小票的第一行：
请写店名，它是小票的第一行。
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
商品表的文件（.xlsx 或 .csv，第一行是列名；不写就没有）：
没有这个文件，或者不是普通文件：none
商品表的文件（.xlsx 或 .csv，第一行是列名；不写就没有）：
不能导入 1 行：
  第 2 行  “零售价”应是不小于 0 的金额，写的是“四块”
请先改正不能导入的行。
商品表的文件（.xlsx 或 .csv，第一行是列名；不写就没有）：
表里的列：
  代号 → （不读）
  品名 → 名称
  售价 → 零售价
都对就直接回车；不对的写 列名=字段，不读的写 列名=：
表里没有“商品编码”，也没有“条码”，不知道是哪种商品。
商品表的文件（.xlsx 或 .csv，第一行是列名；不写就没有）：
表里的列：
  代号 → （不读）
  品名 → 名称
  售价 → 零售价
都对就直接回车；不对的写 列名=字段，不读的写 列名=：
表里的列：
  代号 → 商品编码
  品名 → 名称
  售价 → 零售价
都对就直接回车；不对的写 列名=字段，不读的写 列名=：
给这种表起个名字，以后照样读（不写就不记）：
新增 1 行：
  第 2 行  A1  白糖  4.50
这张表：1 用，2 不用 [1]：
商品条码或编码（不写就不再录入）：
  名称：
  单位：
  零售价：
  库存（不写就不记）：
“零售价”应是不小于 0 的金额，写的是“五块”。这一种没有录入。
商品条码或编码（不写就不再录入）：
  名称：
  单位：
  零售价：
  库存（不写就不记）：
商品条码或编码（不写就不再录入）：
收手机扫码付款：1 否，2 是 [2]：
收款、价格、折扣像打错时先问一声：1 否，2 是 [2]：
库存不够时：1 照卖，2 不卖 [1]：
收银台上可以导入商品表（能收银的人都可以）：1 否，2 是 [2]：
请写 1 到 2。
收银台上可以导入商品表（能收银的人都可以）：1 否，2 是 [2]：
店主在收银台上看经营报表：1 否，2 是 [2]：
记日志：谁在什么时候做了什么，谁也改不了：1 否，2 是 [2]：
打折、删行、退货等要有权限，没有的请人授权：1 否，2 是 [1]：
按班收款：开班写备用金，结班清点钱箱：1 否，2 是 [1]：
收银台上可以练习，不记账：1 否，2 是 [2]：
退出程序时备份数据文件：1 否，2 是 [2]：
)";

/// An owner who has no data file yet, and is asked for a shop.
struct SetupTest : testing::Test, Owner {
  SetupTest() {
    write("goods.csv", "代号;品名;售价\nA1;白糖;4.5\n");
    write("bad.csv", "商品编码,名称,零售价\nA1,白糖,四块\n");
  }
  std::ptrdiff_t filesLeft() const {
    return std::distance(std::filesystem::directory_iterator(folder.path()), {});
  }
  /// A line each; some of the answers are mistakes, after which the question comes again.
  std::vector<std::string> answers() const {
    std::istringstream all(replaced(
        "4|||好邻居||光明路 18 "
        "号|||||3||王店主|秘密|小李|222|none|./bad.csv|./goods.csv||./goods.csv|"
        "代号=商品编码||批发部||6902|红糖|袋|五块||6902|红糖|袋|5.5|3||1|||看情况|||||2|| ",
        "./", folder.path().string() + "/"));
    std::vector<std::string> lines;
    for (std::string line; std::getline(all, line, '|');) lines.push_back(line);
    return lines;
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
            "Approval=0 BackupOnExit=1 CheckPayment=1 GoodsImport=1 Journal=1 OwnerReport=1 "
            "PhonePay=0 Practice=1 "
            "ReceiptText1=欢迎光临 ReceiptText2=光明路 18 号 ReceiptText3=谢谢惠顾，欢迎再来！ "
            "ReceiptText4= ReceiptText5= ReceiptText6= "
            "RoundJiao=0 RoundYuan=1 Shifts=1 ShopName=好邻居 StockRule=0 ");
  EXPECT_EQ(all("select f_spbm a, f_xsdj b from spda order by id"), "A1=4.5 6902=5.5 ");
  EXPECT_EQ(all("select f_sphh a, quantity b from spda join stock on spbm = f_spbm"), "6902=3 ")
      << "a short code can be rung";
  EXPECT_EQ(all("select operator_id a, right_key b from operator_rights where right_key in "
                "('sell', 'report') order by 1, 2"),
            "1=report 1=sell 2=sell ");
  EXPECT_EQ(all("select heading a, field b from goods_mapping where field = '商品编码'"),
            "代号=商品编码 ");
  for (const auto& [number, password] : {std::pair("1", "秘密"), std::pair("2", "222")}) {
    const std::unique_ptr<Connection> connection = open();
    ClsLogin login;
    login.Conn(*connection);
    ASSERT_TRUE(login.Check(number, password)) << number;
  }
  expect(0, "账目正确：", "check @");
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
  EXPECT_EQ(value("select count(*) as value from sys_param where value = '1' and name in"
                  " ('Journal', 'Approval', 'Shifts', 'Practice')"),
            "4");
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

// Ended or refused in the midst: the folder that was made for it goes again too.
TEST_F(SetupTest, ComesIntoAFolderOfItsOwnWholeOrNotAtAll) {
  NewShop shopToBe;
  shopToBe.sheet =
      GoodsSheet{folder.file("goods.csv"), guessMapping({"商品编码", "品名", "售价"}), {}};
  const DataSource target{folder.path() / "data/POS.mdb", ""};
  const auto make = [&](double endsAt) {
    return makeShop(
        shopToBe, target, [this] { return now; }, [] {},
        [=](double part) { return part < endsAt; });
  };
  for (const double endsAt : {0.0, 0.4}) EXPECT_FALSE(make(endsAt));
  write("goods.csv", "代号;品名;售价\n;白糖;4.5\n");
  EXPECT_THROW(static_cast<void>(make(2)), Refusal);
  EXPECT_EQ(filesLeft(), 2);
  std::filesystem::permissions(folder.path(), std::filesystem::perms(02770));
  write("goods.csv", "代号;品名;售价\nA1;白糖;4.5\n");
  EXPECT_TRUE(make(2));
  EXPECT_EQ(std::filesystem::status(folder.file("data")).permissions(),
            std::filesystem::perms(02770))
      << "as its shop's folder is shared";
  write("goods", "a file");
  const DataSource inAFile{folder.path() / "goods/POS.mdb", ""};
  EXPECT_THROW(static_cast<void>(makeShop(shopToBe, inAFile, localTime)), FileError);
}
