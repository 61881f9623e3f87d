#include <gmock/gmock.h>
#include <sys/stat.h>

#include <sstream>
#include <string>

#include "Owner.h"
#include "base/Gbk.h"
#include "shop/Table.h"

namespace {

using testing::HasSubstr;

struct ImportTest : testing::Test {
  Owner owner;
  void SetUp() override {
    ASSERT_EQ(owner.run({"create", owner.shop}), 0) << owner.err;
    owner.execute(
        "insert into spda (f_spbm, f_spmc) values ('1', '面'), ('A1', '面'), ('A2', '面')");
  }
};

TEST_F(ImportTest, AddsNewRowsAndUpdatesKnownOnes) {
  ASSERT_EQ(owner.import("tmda",
                         "sptm,spbm,spmc,xsdj,kssj,dwbl\n"
                         "6990000000001,A1,面,4.50,2026-11-5,\n"
                         "6990000000001,A2,面 大碗,,,12\n"),
            0)
      << owner.err;
  EXPECT_THAT(owner.out, HasSubstr("新增 2 行，更新 0 行"));
  EXPECT_EQ(owner.value("select xsdj || ' ' || zk || ' ' || dwbl || ' ' || kssj as value "
                        "from tmda where spbm = 'a1'"),
            "4.5 1 1 2026-11-05 00:00:00");
  EXPECT_EQ(owner.value("select xsdj || ' ' || dwbl || ' ' || (kssj is null) as value "
                        "from tmda where spbm = 'A2'"),
            "0 12 1");
  // Columns without a place in the file stay as they are; names and keys regardless of case.
  ASSERT_EQ(owner.import("TMDA", gbk::encode("XSDJ,spbm,sptm,spcd\r\n5,a1,6990000000001,镇江\r\n")),
            0)
      << owner.err;
  EXPECT_THAT(owner.out, HasSubstr("新增 0 行，更新 1 行"));
  EXPECT_EQ(owner.value("select xsdj || spmc || kssj || spcd as value from tmda where spbm = 'A1'"),
            "5面2026-11-05 00:00:00镇江");
}

TEST_F(ImportTest, RefusesAWholeFileForOneBadRowAndNamesIt) {
  const std::string longText(256, 'x');
  const struct {
    std::string table, header, row;
    const char* reason;
  } cases[] = {
      {"tmda", "sptm,spbm,spmc,xsdj", "1,1,面,abc", "“xsdj”应是不小于 0 的金额，写的是“abc”"},
      {"tmda", "sptm,spbm,spmc,xsdj", "1,1,面,99999999999999999999", "不小于 0"},
      {"tmda", "sptm,spbm,spmc,zk", "1,1,面,9", "九折写 0.9"},
      {"tmda", "sptm,spbm,spmc,dwbl", "1,1,面,1.5", "“dwbl”应是 1 到 32767 的整数"},
      {"tmda", "sptm,spbm,spmc,kssj", "1,1,面,2026-02-30", "应是日期"},
      {"tmda", "sptm,spbm,spmc", "1,1," + longText, "不超过 255 个字"},
      {"tmda", "sptm,spbm,spmc", "6.99012E+12,1,面", "科学计数法"},
      {"tmda", "sptm,spbm,spmc", "1,1", "有 2 列，标题行有 3 列"},
      {"tmda", "sptm,spbm", "1,1", "是新的，但文件缺少“spmc”"},
      {"tmda", "sptm,spbm,spmc", "1,1,面\x1Bp0", "控制字符"},
      {"tmda", "sptm,spbm,spmc", "1,1,\"面\n合计 1.00\"", "控制字符"},
      {"tmda", "sptm,spbm,spmc", "1,Z9,面", "spda 里没有编码 Z9"},
      {"SP_LB", "SPLB_ID,SPLBMC", "x,酒", "“SPLB_ID”应是大于 0 的整数"},
      {"stock", "spbm,quantity", "1,", "“quantity”应是数量，空着"},
      {"member", "bh,name,enabled", "1,李,2", "应是 0 或 1"},
      {"member", "bh,name,points", "1,李,40000", "-32768 到 32767"},
  };
  for (const auto& [table, header, row, reason] : cases) {
    EXPECT_EQ(owner.import(table, header + "\n\n" + row + "\n"), 1) << row;
    EXPECT_THAT(owner.err, testing::AllOf(HasSubstr("第 3 行"), HasSubstr(reason))) << row;
  }
  ASSERT_EQ(owner.import("stock", "spbm,quantity\n1,5\n"), 0);
  EXPECT_EQ(owner.import("stock", "spbm,quantity\n1,9\n2,x\n3,4\n4,y\n"), 1);
  EXPECT_THAT(owner.err, testing::AllOf(HasSubstr("第 3 行"), HasSubstr("第 5 行")));
  for (const char* twice : {"A1,9\n1,4\na1,5\n", "Z8,9\n1,4\nz8,5\n"}) {
    EXPECT_EQ(owner.import("stock", std::string("spbm,quantity\n") + twice), 1) << twice;
    EXPECT_THAT(owner.err, HasSubstr("第 4 行：与前面的一行主键相同"));
  }
  EXPECT_EQ(owner.value("select group_concat(spbm || '=' || quantity) as value from stock"), "1=5");
}

TEST_F(ImportTest, RefusesHeadersThatItCannotPlace) {
  const struct {
    const char* text;
    const char* reason;
  } cases[] = {
      {"", "文件是空的"},
      {"sptm,spbm,spmc,colour\n",
       "没有“colour”这一列，什么也没有导入。可以有的列：sptm、spbm、ggxh"},
      {"sptm;spbm;spmc\n", "用的是分号"},
      {"sptm,spbm,spmc,SPMC\n", "写了两次"},
      {"sptm,spmc\n", "缺少“spbm”"},
  };
  for (const auto& [text, reason] : cases) {
    EXPECT_EQ(owner.import("tmda", text), 1) << text;
    EXPECT_THAT(owner.err, HasSubstr(reason));
  }
  EXPECT_EQ(owner.run({"import", owner.shop, "--table", "sell", owner.shop}), 2);
  EXPECT_EQ(owner.run({"import", owner.shop, "--table", "tmda", owner.folder.file("none")}), 1);
}

TEST_F(ImportTest, BringsInGoodsAndTheirBarcodesTogetherOrNeither) {
  const std::string goods = owner.folder.file("goods.csv"), codes = owner.folder.file("codes.csv");
  std::ofstream(goods) << "f_spbm,f_spmc\nB1,米\n,\n";
  const auto both = [&](const std::string& barcodes) {
    std::ofstream(codes) << "sptm,spbm,spmc\n" << barcodes;
    return owner.run({"import", owner.shop, "--table", "tmda", codes, "--table", "spda", goods});
  };
  EXPECT_EQ(both("1,B1,米\n2,B2,米\n"), 1);
  EXPECT_THAT(owner.err, HasSubstr("codes.csv：什么也没有导入：\n第 3 行"));
  EXPECT_EQ(owner.value("select count(*) as value from spda"), "3");
  EXPECT_EQ(both("1,B1,米\n"), 0) << owner.err;
  EXPECT_EQ(owner.run({"import", owner.shop, "--table", "spda", goods, codes}), 1);
}

TEST_F(ImportTest, SaysWhatIsLikelyWrong) {
  ASSERT_EQ(owner.import("tmda",
                         "sptm,spbm,spmc,cxj,kssj,jssj\n"
                         "6901234567892,1,面,3,2026-11-1,2026-11-2\n"
                         "6901234567890,1,面,3,2026-11-2,2026-11-1\n"
                         "12345,1,面,0,2026-11-1,2026-11-2\n"),
            0)
      << owner.err;
  EXPECT_THAT(owner.err, testing::AllOf(HasSubstr("第 3 行：条码 6901234567890 的校验位不对"),
                                        HasSubstr("；促销的结束日期"), HasSubstr("第 4 行：有促销"),
                                        testing::Not(HasSubstr("第 2 行"))));
}

TEST_F(ImportTest, LeavesWhatMembersHaveSpentUnlessTold) {
  owner.execute(
      "insert into member (bh, name, card, password, total_spent, points, join_date)"
      " values ('8001', '李', 20, 'new', 80, 8, '2026-01-01 00:00:00')");
  const std::string list = owner.folder.file("members.csv");
  std::ofstream(list) << "bh,name,card,password,total_spent,points\n8001,李丽,100,old,0,0\n";
  const std::string all =
      "select name || card || password || total_spent || points ||"
      " coalesce((select commerce from cardStored), '') as value from member";
  std::vector<std::string> words = {"import", owner.shop, "--table", "member", list};
  ASSERT_EQ(owner.run(words), 0) << owner.err;
  EXPECT_EQ(owner.value(all), "李丽20new808");
  EXPECT_THAT(owner.out, HasSubstr("没有动"));
  words.emplace_back("--replace-accounts");
  ASSERT_EQ(owner.run(words), 0) << owner.err;
  EXPECT_EQ(owner.value(all), "李丽100old00100") << "the balance is among the top-ups too";
}

TEST(ExportTest, IsWhatImportNeedsToMakeTheSameShop) {
  Owner from, to;
  ASSERT_EQ(from.run({"create", from.shop, "--demo"}), 0) << from.err;
  ASSERT_EQ(to.run({"create", to.shop}), 0);
  from.execute("update tmda set spmc = 'a,\"b\"' where id = 1");
  for (const std::string& table : tableNames()) {
    const std::string csv = from.folder.file(table + ".csv");
    ASSERT_EQ(from.run({"export", from.shop, "--table", table, csv}), 0) << from.err;
    struct stat file {};
    ASSERT_EQ(stat(csv.c_str(), &file), 0);
    EXPECT_EQ(file.st_mode & 0777, 0600u) << "card passwords are in it";
    ASSERT_EQ(to.run({"import", to.shop, "--table", table, csv}), 0) << to.err;
    EXPECT_EQ(to.err, "") << "nothing of the demo shop is doubtful";
    ASSERT_EQ(to.run({"export", to.shop, "--table", table, "-"}), 0);
    std::stringstream exported;
    exported << std::ifstream(csv, std::ios::binary).rdbuf();
    EXPECT_EQ(to.out, exported.str());
    EXPECT_THAT(to.out, testing::StartsWith("\xEF\xBB\xBF"));
  }
  EXPECT_EQ(from.run({"export", from.shop, "--table", "tmda", from.shop}), 1);
  EXPECT_EQ(from.run({"check", from.shop}), 0) << "the data file is no place for an export";
}

}  // namespace
