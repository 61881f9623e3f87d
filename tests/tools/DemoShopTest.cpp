#include <gmock/gmock.h>

#include <set>
#include <string>

#include "Owner.h"
#include "saleslib/ClsLogin.h"
#include "saleslib/ClsMemberSvc.h"
#include "saleslib/ClsOperator.h"

namespace {

bool isEan13(const std::string& code) {
  if (code.size() != 13 || code.find_first_not_of("0123456789") != std::string::npos) return false;
  int sum = 0;
  for (std::size_t place = 0; place < code.size(); ++place) {
    sum += (code[place] - '0') * (place % 2 == 0 ? 1 : 3);
  }
  return sum % 10 == 0;
}

struct DemoShop : testing::Test {
  static inline std::unique_ptr<Owner> owner;
  static void SetUpTestSuite() {
    owner = std::make_unique<Owner>();
    ASSERT_EQ(owner->run({"create", owner->shop, "--demo"}), 0) << owner->err;
  }
  static void TearDownTestSuite() { owner.reset(); }
};

TEST_F(DemoShop, HoldsEveryKindOfArticle) {
  const struct {
    const char* what;
    const char* count;
    std::int64_t least, most;
  } cases[] = {
      {"articles", "spda", 300, 300},
      {"stock", "stock where quantity > 0", 300, 300},
      {"categories", "SP_LB", 12, 15},
      {"categories in use", "SP_LB where SPLBMC in (select f_splbmc from spda)", 12, 15},
      {"goods outside any category", "tmda where splbmc not in (select SPLBMC from SP_LB)", 0, 0},
      {"cases", "tmda where dwbl in (6, 12, 24)", 20, 100},
      {"weighed", "tmda where jldw = '公斤' and xsdj > 0", 10, 50},
      {"without a price", "tmda where xsdj = 0", 2, 10},
      {"with a discount", "tmda where zk < 1", 5, 30},
      {"on promotion today",
       "tmda where kssj <= '2026-11-22 00:00:00' and jssj >= '2026-11-22 00:00:00'", 5, 30},
      {"promotion over or to come",
       "tmda where kssj > '2026-11-22 00:00:00' or jssj < '2026-11-22 00:00:00'", 2, 30},
      {"barcodes of two articles",
       "(select sptm from tmda group by sptm having count(distinct spbm) = 2)", 1, 5},
      {"item numbers", "(select distinct f_sphh from spda)", 300, 300},
      {"empty texts", "tmda where spmc = '' or ggxh = '' or jldw = '' or spcd = ''", 0, 0},
      {"specification too long or short", "tmda where length(ggxh) not between 2 and 5", 0, 0},
      {"item number inside a specification",
       "spda s join tmda t on t.ggxh like '%' || s.f_sphh || '%'", 0, 0},
      {"master and barcode disagree",
       "tmda t left join spda s on s.f_spbm = t.spbm where s.f_spbm is null or s.f_splbmc <> "
       "t.splbmc or s.f_spcd <> t.spcd or (t.dwbl = 1 and (s.f_spmc <> t.spmc or s.f_xsdj <> "
       "t.xsdj "
       "or s.f_pfj <> t.pfj or s.f_zk <> t.zk or s.f_zhjj <> t.zhjj or s.f_sptm <> t.sptm or "
       "s.f_Ggxh <> t.ggxh or s.f_jldw <> t.jldw))",
       0, 0},
      {"sold below cost or at a fancy price",
       "tmda where xsdj > 0 and (xsdj <= zhjj or xsdj > 1000)", 0, 0},
      {"member or promotion price not below the price",
       "tmda where xsdj > 0 and (pfj >= xsdj or cxj >= xsdj)", 0, 0},
      {"a case dearer than its pieces",
       "tmda c join spda s on s.f_spbm = c.spbm where c.dwbl > 1 and c.xsdj > s.f_xsdj * c.dwbl", 0,
       0},
  };
  const auto connection = owner->open();
  for (const auto& [what, count, least, most] : cases) {
    Rows rows = connection->query(("select count(*) as n from " + std::string(count)).c_str());
    ASSERT_TRUE(rows.next());
    EXPECT_THAT(rows.whole("n"),
                testing::Optional(testing::AllOf(testing::Ge(least), testing::Le(most))))
        << what;
  }
}

TEST_F(DemoShop, HasBarcodesThatAScannerReads) {
  const auto connection = owner->open();
  Rows rows = connection->query("select sptm, jldw from tmda");
  while (rows.next()) {
    const std::string code = rows.text("sptm");
    EXPECT_TRUE(isEan13(code)) << code;
    // Loose goods carry the shop's own codes.
    EXPECT_TRUE(code.starts_with(rows.text("jldw") == "公斤" ? "20" : "69")) << code;
  }
}

TEST_F(DemoShop, HasPeopleWhoCanBegin) {
  const auto connection = owner->open();
  const struct {
    const char* number;
    const char* password;
    const char* name;
    bool maySell;
  } operators[] = {
      {"1", "111", "张三", true}, {"2", "222", "李四", true}, {"3", "333", "王五", false}};
  for (const auto& [number, password, name, maySell] : operators) {
    ClsLogin login;
    login.Conn(*connection);
    ASSERT_TRUE(login.Check(number, password)) << name;
    EXPECT_EQ(login.Operator()->Name(), name);
    EXPECT_EQ(login.Operator()->Rights().HasRight(kRightSell), maySell) << name;
  }
  int members = 0, blocked = 0, rich = 0;
  Rows rows = connection->query("select bh, card, password from member where discount < 1");
  ClsMemberSvc service;
  service.Conn(*connection);
  for (; rows.next(); ++members) {
    EXPECT_NE(rows.text("password"), "");
    if (!service.GetMember(rows.text("bh"))->Enabled()) ++blocked;
    if (*rows.currency("card") > Currency::fromYuan(300)) ++rich;
  }
  EXPECT_EQ(members, 5);
  EXPECT_EQ(blocked, 1);
  EXPECT_GE(rich, 1) << "somebody can pay a bill by card";
  EXPECT_EQ(owner->run({"check", owner->shop}), 0) << owner->out;
}

}  // namespace
