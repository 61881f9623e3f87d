#include <gmock/gmock.h>

#include <string>

#include "Owner.h"

namespace {

TEST(DemoShopTest, HasEveryKindOfArticleAndPeopleWhoCanBegin) {
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
  EXPECT_EQ(connection->Open("select 1 from tmda where length(sptm) <> 13").count(), 0U);
}

}  // namespace
