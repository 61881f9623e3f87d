#include <gmock/gmock.h>

#include <string>

#include "Owner.h"

namespace {

bool isEan13(const std::string& code) {
  if (code.size() != 13 || code.find_first_not_of("0123456789") != std::string::npos) return false;
  int sum = 0;
  for (std::size_t place = 0; place < code.size(); ++place) {
    sum += (code[place] - '0') * (place % 2 == 0 ? 1 : 3);
  }
  return sum % 10 == 0;
}

TEST(DemoShop, HasEveryKindOfArticleAndPeopleWhoCanBegin) {
  Owner owner;
  ASSERT_EQ(owner.run({"create", owner.shop, "--demo"}), 0) << owner.err;
  EXPECT_EQ(owner.run({"check", owner.shop}), 0) << owner.out;
  const auto connection = owner.open();
  const std::pair<const char*, std::size_t> atLeast[] = {
      {"stock where quantity > 0", 300},
      {"SP_LB where SPLBMC in (select f_splbmc from spda)", 12},
      {"tmda where dwbl > 1", 20},
      {"tmda where jldw = '公斤' and xsdj > 0", 10},
      {"tmda where xsdj = 0", 2},
      {"tmda where zk < 1", 5},
      {"tmda where kssj <= '2026-11-22 00:00:00' and jssj >= '2026-11-22 00:00:00'", 5},
      {"(select 1 from tmda group by sptm having count(distinct spbm) = 2)", 1},
      {"member where enabled = 1 and card > 300 and password <> ''", 1},
      {"member where enabled = 0", 1},
      {"operator_rights where operator_id = 1", 1},
  };
  for (const auto& [from, least] : atLeast) {
    EXPECT_GE(connection->Open("select 1 from " + std::string(from)).count(), least) << from;
  }
  Rows rows = connection->query("select sptm from tmda");
  while (rows.next()) EXPECT_TRUE(isEan13(rows.text("sptm"))) << rows.text("sptm");
}

}  // namespace
