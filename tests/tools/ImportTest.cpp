#include <sys/stat.h>

#include "Owner.h"
#include "base/Gbk.h"
#include "shop/Table.h"

using testing::HasSubstr;

struct ImportTest : OwnerTest {
  ImportTest() {
    execute("insert into spda (f_spbm, f_spmc) values ('1', '面'), ('A1', '面'), ('A2', '面')");
  }
  /// Imports that text, with that outcome.
  void import(int code, const std::string& said, const std::string& table,
              const std::string& text) {
    write("import.csv", text);
    expect(code, said, "import @ --table " + table + " ./import.csv");
  }
};

TEST_F(ImportTest, AddsNewRowsAndUpdatesKnownOnes) {
  const auto row = [this](const char* code) {
    return value(
        "select xsdj || spmc || zk || ' ' || dwbl || coalesce(kssj, '-') ||"
        " coalesce(spcd, '-') as value from tmda where spbm = '" +
        std::string(code) + "'");
  };
  import(0, "新增 2 行，更新 0 行", "tmda",
         "sptm,spbm,spmc,xsdj,kssj,dwbl\n6990000000001,A1,面,4.50,2026-11-5,\n"
         "6990000000001,A2,面 大碗,,,12\n");
  EXPECT_EQ(row("a1") + row("A2"), "4.5面1 12026-11-05 00:00:000面 大碗1 12-");
  // Columns without a place in the file stay as they are; names and keys regardless of case.
  import(0, "新增 0 行，更新 1 行", "TMDA",
         gbk::encode("XSDJ,spbm,sptm,spcd\r\n5,a1,6990000000001,镇江\r\n"));
  EXPECT_EQ(row("A1"), "5面1 12026-11-05 00:00:00镇江");
}

TEST_F(ImportTest, RefusesAWholeFileForOneBadRowAndNamesIt) {
  const struct {
    const char *table, *header;
    std::string row;
    const char* reason;
  } cases[] = {
      {"tmda", "sptm,spbm,spmc,xsdj", "1,1,面,abc", "“xsdj”应是不小于 0 的金额，写的是“abc”"},
      {"tmda", "sptm,spbm,spmc,xsdj", "1,1,面,99999999999999999999", "不小于 0"},
      {"tmda", "sptm,spbm,spmc,zk", "1,1,面,9", "九折写 0.9"},
      {"tmda", "sptm,spbm,spmc,dwbl", "1,1,面,1.5", "“dwbl”应是 1 到 32767 的整数"},
      {"tmda", "sptm,spbm,spmc,kssj", "1,1,面,2026-02-30", "应是日期"},
      {"tmda", "sptm,spbm,spmc", "1,1," + std::string(256, 'x'), "不超过 255 个字"},
      {"tmda", "sptm,spbm,spmc", "6.99012E+12,1,面", "科学计数法"},
      {"tmda", "sptm,spbm,spmc", "1,1", "有 2 列，标题行有 3 列"},
      {"tmda", "sptm,spbm", "1,1", "是新的，但文件缺少“spmc”"},
      {"tmda", "sptm,spbm,spmc", "1,1,面\x1Bp0", "控制字符"},
      {"tmda", "sptm,spbm,spmc", "1,1,\"面\n合计 1.00\"", "控制字符"},
      {"tmda", "sptm,spbm,spmc", "1,Z9,面", "spda 里没有编码 Z9"},
      {"SP_LB", "SPLB_ID,SPLBMC", "x,酒", "“SPLB_ID”应是大于 0 的整数"},
      {"stock", "spbm,quantity", "1,", "“quantity”应是数量，空着"},
      {"member", "bh,name,enabled", "1,李,2", "应是 0 或 1"},
      {"member", "bh,name,points", "1,李,40000", "-32768 到 32767"}};
  for (const auto& [table, header, row, reason] : cases) {
    import(1, reason, table, std::string(header) + "\n\n" + row + "\n");
    EXPECT_THAT(err, HasSubstr("第 3 行"));
  }
  import(0, "", "stock", "spbm,quantity\n1,5\n");
  import(1, "第 3 行", "stock", "spbm,quantity\n1,9\n2,x\n3,4\n4,y\n");
  EXPECT_THAT(err, HasSubstr("第 5 行"));
  for (const std::string twice : {"A1,9\n1,4\na1,5\n", "Z8,9\n1,4\nz8,5\n"})
    import(1, "第 4 行：与前面的一行主键相同", "stock", "spbm,quantity\n" + twice);
  EXPECT_EQ(value("select group_concat(spbm || '=' || quantity) as value from stock"), "1=5");
}

TEST_F(ImportTest, RefusesHeadersThatItCannotPlace) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "文件是空的"},
      {"sptm,spbm,spmc,colour\n",
       "没有“colour”这一列，什么也没有导入。可以有的列：sptm、spbm、ggxh"},
      {"sptm;spbm;spmc\n", "用的是分号"},
      {"sptm,spbm,spmc,SPMC\n", "写了两次"},
      {"sptm,spmc\n", "缺少“spbm”"}};
  for (const auto& [text, reason] : cases) import(1, reason, "tmda", text);
  expect(2, "--table", "import @ --table sell ./import.csv");
  expect(1, "none", "import @ --table tmda ./none");
}

TEST_F(ImportTest, BringsInGoodsAndTheirBarcodesTogetherOrNeither) {
  write("goods.csv", "f_spbm,f_spmc\nB1,米\n,\n");
  const std::string both = "import @ --table tmda ./codes.csv --table spda ./goods.csv";
  write("codes.csv", "sptm,spbm,spmc\n1,B1,米\n2,B2,米\n");
  expect(1, "codes.csv：什么也没有导入：\n第 3 行", both);
  EXPECT_EQ(value("select count(*) as value from spda"), "3");
  write("codes.csv", "sptm,spbm,spmc\n1,B1,米\n");
  expect(0, "", both);
  expect(1, "", "import @ --table spda ./goods.csv ./codes.csv");
}

TEST_F(ImportTest, SaysWhatIsLikelyWrong) {
  import(0, "第 3 行：条码 6901234567890 的校验位不对", "tmda",
         "sptm,spbm,spmc,cxj,kssj,jssj\n"
         "6901234567892,1,面,3,2026-11-1,2026-11-2\n"
         "6901234567890,1,面,3,2026-11-2,2026-11-1\n"
         "12345,1,面,0,2026-11-1,2026-11-2\n");
  EXPECT_THAT(err, AllOf(HasSubstr("；促销的结束日期"), HasSubstr("第 4 行：有促销"),
                         Not(HasSubstr("第 2 行"))));
}

TEST_F(ImportTest, LeavesWhatMembersHaveSpentUnlessTold) {
  execute(
      "insert into member (bh, name, card, password, total_spent, points, join_date)"
      " values ('8001', '李', 20, 'new', 80, 8, '2026-01-01 00:00:00')");
  write("members.csv", "bh,name,card,password,total_spent,points\n8001,李丽,100,old,0,0\n");
  const std::string all =
      "select name || card || password || total_spent || points ||"
      " coalesce((select commerce from cardStored), '') as value from member";
  expect(0, "没有动", "import @ --table member ./members.csv");
  EXPECT_EQ(value(all), "李丽20new808");
  expect(0, "", "import @ --table member ./members.csv --replace-accounts");
  EXPECT_EQ(value(all), "李丽100old00100") << "the balance is among the top-ups too";
}

TEST(ExportTest, IsWhatImportNeedsToMakeTheSameShop) {
  Owner from, to;
  from.expect(0, "", "create @ --demo");
  to.expect(0, "", "create @");
  EXPECT_EQ(from.value("select (select count(*) from stock where quantity > 0) >= 300 and exists "
                       "(select 1 from member where enabled = 0) as value"),
            "1")
      << "goods enough to sell, and a card that is blocked";
  from.execute("update tmda set spmc = 'a,\"b\"' where id = 1");
  for (const std::string& table : tableNames()) {
    const std::string csv = from.folder.file(table + ".csv");
    from.expect(0, "", "export @ --table " + table + " " + csv);
    struct stat file {};
    ASSERT_EQ(stat(csv.c_str(), &file), 0);
    EXPECT_EQ(file.st_mode & 0777, 0600u) << "card passwords are in it";
    to.expect(0, "", "import @ --table " + table + " " + csv);
    EXPECT_EQ(to.err, "") << "nothing of the demo shop is doubtful";
    to.expect(0, "\xEF\xBB\xBF", "export @ --table " + table + " -");
    std::stringstream exported;
    exported << std::ifstream(csv, std::ios::binary).rdbuf();
    EXPECT_EQ(to.out, exported.str());
  }
  from.expect(1, "", "export @ --table tmda " + from.shop);
  from.expect(0, "", "check @");  // the data file is no place for an export
}
