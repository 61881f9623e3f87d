#include <gmock/gmock.h>

#include <string>

#include "Owner.h"
#include "saleslib/ClsLogin.h"
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

TEST_F(DemoShop, HoldsEveryKindOfArticleAndItsTablesAgree) {
  const std::pair<const char*, int> atLeast[] = {
      {"spda", 300},
      {"stock where quantity > 0", 300},
      {"SP_LB where SPLBMC in (select f_splbmc from spda)", 12},
      {"tmda where dwbl > 1", 20},
      {"tmda where jldw = '公斤' and xsdj > 0", 10},
      {"tmda where xsdj = 0", 2},
      {"tmda where zk < 1", 5},
      {"tmda where kssj <= '2026-11-22 00:00:00' and jssj >= '2026-11-22 00:00:00'", 5},
      {"(select 1 from tmda group by sptm having count(distinct spbm) = 2)", 1},
  };
  const auto count = [](const std::string& from) {
    return std::stoi(owner->value("select count(*) as value from " + from));
  };
  for (const auto& [from, least] : atLeast) EXPECT_GE(count(from), least) << from;
  for (const char* wrong :
       {"tmda t left join spda s on s.f_spbm = t.spbm where s.f_spbm is null or s.f_splbmc <> "
        "t.splbmc or (t.dwbl = 1 and (s.f_spmc <> t.spmc or s.f_xsdj <> t.xsdj or s.f_sptm <> "
        "t.sptm))",
        "tmda where xsdj > 0 and (xsdj <= zhjj or pfj >= xsdj or cxj >= xsdj)"}) {
    EXPECT_EQ(count(wrong), 0) << wrong;
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
    bool maySell;
  } operators[] = {{"1", "111", true}, {"3", "333", false}};
  for (const auto& [number, password, maySell] : operators) {
    ClsLogin login;
    login.Conn(*connection);
    ASSERT_TRUE(login.Check(number, password)) << number;
    EXPECT_EQ(login.Operator()->Rights().HasRight(kRightSell), maySell) << number;
  }
  EXPECT_EQ(owner->value("select count(*) || ' ' || sum(enabled) || ' ' || (max(card) > 300) as "
                         "value from member where discount < 1 and password <> ''"),
            "5 4 1")
      << "one is blocked, somebody can pay a bill by card";
  EXPECT_EQ(owner->run({"check", owner->shop}), 0) << owner->out;
}

}  // namespace
