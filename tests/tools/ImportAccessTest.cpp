#include <fstream>
#include <iterator>

#include "Owner.h"

using testing::AllOf;
using testing::HasSubstr;

namespace {

/// Access data files that tests/access/make_sample.py made, and what is left of them.
struct ImportAccessTest : OwnerTest {
  static std::string sample(const std::string& name) {
    std::ifstream file(TILL_ACCESS_SAMPLES + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  ImportAccessTest() {
    write("old.mdb", sample("sample-jet4.mdb"));
    write("97.mdb", sample("sample-jet3.mdb"));
  }
  /// All rows of a query, as the engine writes their values.
  std::string rows(const std::string& columns, const std::string& table) const {
    std::string quoted;
    std::istringstream names(columns);
    for (std::string name; names >> name;)
      quoted += (quoted.empty() ? "quote(" : "||' '||quote(") + name + ")";
    return value("select group_concat(r, x'0A') as value from (select " + quoted + " as r from " +
                 table + " order by rowid)");
  }
};

const std::string kAll =
    "import-access ./old.mdb @ --map sell.应收=amount --map 会员=member --map 会员.编号=id"
    " --map 会员.密码=password --map 会员.生日=birthday --map 会员.备注=other";

}  // namespace

TEST_F(ImportAccessTest, TakesOverAShopExactly) {
  expect(0, "", kAll);
  for (const char* said :
       {"spda：2 行，没有带来 2 行\n  第 3 行（“a1”）：主键与前面的一行相同\n", "SPLB_ID 空着",
        "（“10”）：没有结账", "（“105”）：单据 10 没有带来", "addmoney 是“免费”，不是金额",
        "other 有 4500 个字，只带来前 255 个", "other 里的换行等控制字符改成了空格",
        "没有带来的列：spda.kcsl\n", "没有带来的表：便条  1 行\n", "总店商品  链接表",
        "1 张储值卡的余额", "库存没有带来", "操作员做的：1；"})
    EXPECT_THAT(out, HasSubstr(said));
  EXPECT_EQ(
      rows("f_spbm f_spmc f_sphh f_sptm f_Ggxh f_jldw f_xsdj f_pfj f_zk f_zhjj f_splbmc", "spda"),
      "'A1' '海盐''薄荷\"糖' 'HY-1' '6900000000017' '袋装 60g' '袋' 4.5 4 0.9 2.3333 '食品'\n"
      "'A2' 'Cafe' '' NULL '' '杯' 12.0001 NULL NULL NULL NULL");
  EXPECT_EQ(rows("sptm spbm ggxh xsdj zk cxj kssj jssj dwbl", "tmda"),
            "'6900000000017' 'A1' '袋装 60g' 4.5 0.9 3.9 '2026-11-01 00:00:00' "
            "'2026-11-30 23:59:59' 12\n'20' 'A2' '' 12.0001 NULL NULL NULL NULL 1");
  EXPECT_EQ(rows("id sell_time state quantity goods_amount amount cash card_pay card_no member_id",
                 "sell"),
            "7 '2026-11-20 18:30:59' 1 2 8.1 8.1 10 0 '' 0\n"
            "9 '2026-11-21 09:00:00' 1 1 12 12 0 12 '8001' 2");
  EXPECT_EQ(rows("id sellId insert_Date bm amount price discount money in_price", "sellProducts"),
            "101 7 '2026-11-20 18:30:10' 'A1' 2 4.5 0.9 8.1 2.3333\n"
            "103 9 '2026-11-21 09:00:00' 'A2' 1.5 12 1 18 NULL\n"
            "104 9 '2026-11-21 09:00:01' 'A2' -0.5 12 1 -6 NULL");
  EXPECT_EQ(rows("id bh name hyzklb card password birthday length(other) total_spent", "member"),
            "1 '8002' '' NULL -0.0001 '' NULL 4 0\n"
            "2 '8001' '欧阳𠮷' '2' 76.5 'Ab1' '1899-12-29 12:00:00' 255 12");
  EXPECT_EQ(rows("cardbh addmoney inMoney commerce bz complete", "cardStored"),
            "'8001' 100 100 100 '' 1\n'8001' -23.5 0 76.5 '带来时的余额' 1");
  EXPECT_EQ(value("select group_concat(SPLBMC) || (select seq from sqlite_sequence"
                  " where name = 'sellProducts') as value from SP_LB"),
            "食品,百货104")
      << "the next line follows on the last one";
  // What is wrong there is wrong here, and nothing else.
  expect(1, "储值卡 8002 的余额是负的：-0.0001\n", "check @");
  EXPECT_THAT(out, HasSubstr("发现 1 处问题"));
  expect(1, "表 SP_LB 里已经有数据", kAll);
}

TEST_F(ImportAccessTest, ReadsAccess97AndListsWithoutTaking) {
  expect(0, "会员  2 行，不带\n", "import-access ./old.mdb");
  EXPECT_THAT(out,
              AllOf(HasSubstr("  xsdj（货币） -> xsdj\n"), HasSubstr("  kcsl（双精度） 不带")));
  expect(0, "  内容（备注） 不带\n  缺少 id，用 --map 指出\n  缺少 sellId",
         "import-access ./old.mdb @ --list --map 便条=sellProducts");
  EXPECT_EQ(value("select count(*) as value from spda"), "0");
  expect(0, "spda：2 行", "import-access ./97.mdb @");
  EXPECT_EQ(rows("f_spbm f_spmc f_xsdj f_zk", "spda"),
            "'A1' '海盐薄荷糖' 4.5 0.95\n'A2' NULL NULL NULL");
}

TEST_F(ImportAccessTest, RefusesWhatItCannotPlace) {
  const std::pair<const char*, const char*> cases[] = {
      {"./none.mdb @", "没有这个文件"},
      {"./old.mdb @ --map spda", "旧表=新表"},
      {"./old.mdb @ --map 没有=spda", "Access 文件里的表没有“没有”"},
      {"./old.mdb @ --map 便条=operators", "可以带来的表没有“operators”"},
      {"./old.mdb @ --map spda.kcsl=x", "表 spda 里的列没有“x”"},
      {"./old.mdb @ --map 便条.内容=bz", "先用 --map 便条=新表"},
      {"./old.mdb @ --map 会员=spda --map 便条=spda", "冲突"},
      {"./old.mdb @ --map 便条=stock", "没有 spbm 这一列"},
      {"./old.mdb @ --skip 便条", "可以带来的表没有"},
      {"./half.mdb @", "已损坏"},
      {"./old.mdb ./other.mdb", "other.mdb"}};
  write("half.mdb", sample("sample-jet4.mdb").substr(0, 40960));
  for (const auto& [words, reason] : cases)
    expect(1, reason, std::string("import-access ") + words);
  EXPECT_EQ(value("select (select count(*) from spda) + (select count(*) from sell) as value"),
            "0");
}
