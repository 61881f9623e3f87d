#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "Owner.h"

namespace {

using testing::HasSubstr;

struct Books : testing::Test {
  Owner owner;
  // A settled bill of two lines with a return, and an open bill that is being rung.
  void SetUp() override {
    ASSERT_EQ(owner.run({"create", owner.shop}), 0);
    owner.open()->runScript(R"(
      insert into operators (id, name, code, password) values (1, '张三', '01', '-');
      insert into sell (id, sell_time, operator_id, state, quantity, goods_amount, amount) values
        (1, '2026-11-22 09:00:00', 1, 1, 1.3, 4.8, 5), (2, '2026-11-22 09:01:00', 1, 0, 0, 0, 0);
      insert into sellProducts
        (id, sellId, insert_Date, bm, name, amount, price, discount, money) values
        (1, 1, '2026-11-22 09:00:00', 'A', '面', 1.1, 4.18, 1, 4.6),
        (2, 1, '2026-11-22 09:00:01', 'B', '糖', 0.2, 1, 1, 0.2),
        (3, 2, '2026-11-22 09:01:01', 'A', '面', 7, 4.5, 1, 31.5);
      insert into un_sell (id, un_time, sell_id, item_id, quantity, money, cost, ratio, discount,
        operator_id) values (1, '2026-11-22 10:00:00', 1, 2, 1, 1, 0, 1, 1, 1);
      insert into stock (spbm, quantity) values ('A', -2.5);
    )");
  }
};

TEST_F(Books, AreRightWithWhatTheTillWritesAndWhileItWrites) {
  const std::unique_ptr<Connection> till = owner.open();
  till->run("begin immediate");
  till->run("update sell set quantity = 99 where id = 1");
  EXPECT_EQ(owner.run({"check", owner.shop}), 0) << owner.out << owner.err;
  EXPECT_THAT(owner.out,
              HasSubstr("账目正确：单据 2 张（其中未结 1 张），商品行 3 行，退货 1 笔，库存 1 条"));
  till->run("rollback");
  till->run("update sell set paid = 1 where id = 2");
  till->run(
      "insert into cardStored (cardbh, inMoney, addmoney, commerce) values ('8001', 90, 100, 150)");
  EXPECT_EQ(owner.run({"check", owner.shop}), 0);
  EXPECT_THAT(owner.out, HasSubstr("有 1 张单据已收款、还没存完"));
  EXPECT_THAT(owner.out,
              HasSubstr("充值 1 没有完成，卡内余额没有改变：卡号 8001，付款 90.00，充值 100.00"));
}

TEST_F(Books, NameEachFault) {
  const struct {
    const char* damage;
    const char* fault;
  } cases[] = {
      {"update sell set quantity = 1.4 where id = 1", "单据 1 的数量是 1.4，商品行加起来是 1.3"},
      {"update sellProducts set money = 4.61 where id = 1",
       "单据 1 的商品金额是 4.80，商品行加起来是 4.81"},
      {"update sellProducts set money = 'x' where id = 2", "单据 1 或它的商品行 2 的数量或金额"},
      {"update sellProducts set sellId = 9 where id = 3", "商品行 3（面）的单据 9 不存在"},
      {"insert into sell (id, sell_time, operator_id, state, quantity, goods_amount) "
       "values (5, '2026-11-22 09:00:00', 1, 1, 1, 1)",
       "单据 5 的数量是 1，商品行加起来是 0"},
      {"update sell set operator_id = 8 where id = 2", "未结的单据 2 的操作员 8 不存在"},
      {"update sell set state = 7 where id = 2", "单据 2 的状态不是"},
      {"update un_sell set item_id = 3", "退货 1 所退的商品行 3 不在单据 1 里"},
      {"update sell set paid = 1 where id = 1", "单据 1 已结，却还带着收款未存的标记"},
      {"update sell set amount = 6 where id = 1", "单据 1 的应收是 6.00，商品金额是 4.80"},
      {"update sell set card_pay = 4.99, card_no = '8001' where id = 1",
       "储值卡付款是 4.99，不够应收的 5.00"},
      {"update sell set card_pay = 5 where id = 1", "单据 1 用储值卡付款，却没有卡号"},
      {"update sqlite_sequence set seq = 1 where name = 'sell'", "流水号会重复：最大的单据是 2"},
      {"update sellProducts set price = 4 where id = 3",
       "单据 2 的商品行 3（面）金额是 31.50，按单价、数量、折扣应是 28.00"},
      {"update sellProducts set amount = -0.2 where id = 2",
       "商品行 2（糖）退的比卖的多，还剩 -0.2"},
      {"update un_sell set quantity = 0", "退货 1 的数量不对：0"},
      {"insert into member (id, bh, card, join_date) values (3, '8003', -1, '')",
       "储值卡 8003 的余额是负的：-1"},
      {"update stock set quantity = 'many'", "商品 A 的库存不是数字：“many”"},
  };
  const std::string right = owner.folder.file("right.mdb");
  std::filesystem::copy_file(owner.shop, right);
  for (const auto& [damage, fault] : cases) {
    owner.execute(damage);
    EXPECT_EQ(owner.run({"check", owner.shop}), 1) << damage;
    EXPECT_THAT(owner.out, HasSubstr(fault));
    std::filesystem::copy_file(right, owner.shop,
                               std::filesystem::copy_options::overwrite_existing);
  }
}

TEST_F(Books, AreNotCalledRightWhenTheFileIsDamaged) {
  owner.scratchShop();
  EXPECT_EQ(owner.run({"check", owner.shop}), 1);
  EXPECT_THAT(owner.out + owner.err, testing::Not(HasSubstr("账目正确")));
}

TEST_F(Books, MissPurchasesThatWereNotCredited) {
  owner.execute("insert into member (id, bh, total_spent, join_date) values (3, '8003', 4.99, '')");
  owner.execute("update sell set member_id = 3 where id = 1");
  EXPECT_EQ(owner.run({"check", owner.shop}), 0) << "goods were taken back: " << owner.out;
  owner.execute("delete from un_sell");
  EXPECT_EQ(owner.run({"check", owner.shop}), 1);
  EXPECT_THAT(owner.out, HasSubstr("会员 8003 的累计消费是 4.99，少于已结单据的合计 5"));
}

TEST_F(Books, RepairMakesTheGoodsIndexNew) {
  owner.execute("insert into spda (f_spbm, f_Ggxh) values ('A', '500ml')");
  owner.execute("delete from spda_written");
  const auto finds = [this] {
    return owner.open()->Open("select f_spbm from spda where f_Ggxh like '%00ml%'").count();
  };
  ASSERT_EQ(finds(), 0U);
  EXPECT_EQ(owner.run({"check", owner.shop, "--repair"}), 0) << owner.out << owner.err;
  EXPECT_THAT(owner.out, HasSubstr("已重建"));
  EXPECT_EQ(finds(), 1U);
  EXPECT_EQ(owner.run({"check", owner.shop, "--repair"}), 0);
  EXPECT_THAT(owner.out, testing::Not(HasSubstr("重建")));
}

}  // namespace
