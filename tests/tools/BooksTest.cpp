#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "Owner.h"

namespace {

using testing::HasSubstr;

struct BooksTest : testing::Test {
  Owner owner;
  // A settled bill of two lines with a return, and an open bill that is being rung.
  void SetUp() override {
    ASSERT_EQ(owner.run({"create", owner.shop}), 0);
    owner.open()->runScript(R"(
      insert into operators (id, name, code, password) values (1, '张三', '01', '$argon2id$1');
      insert into sys_param values ('RoundYuan', '1');
      insert into spda (f_spbm, f_spmc) values ('A', '面'), ('B', '糖');
      insert into sell (id, sell_time, operator_id, state, quantity, goods_amount, amount) values
        (1, '2026-11-22 09:00:00', 1, 1, 1.3, 4.8, 5), (2, '2026-11-22 09:01:00', 1, 0, 0, 0, 0);
      insert into sellProducts
        (id, sellId, insert_Date, bm, name, amount, price, discount, money) values
        (1, 1, '2026-11-22 09:00:00', 'A', '面', 1.1, 4.18, 1, 4.6),
        (2, 1, '2026-11-22 09:00:01', 'B', '糖', 0.2, 1, 1, 0.2),
        (3, 2, '2026-11-22 09:01:01', 'A', '面', 7, 4.5, 1, 31.5);
      insert into un_sell (id, un_time, sell_id, item_id, quantity, money, cost, ratio, discount,
        operator_id) values (1, '2026-11-22 09:02:00', 1, 2, 1, 1, 0, 1, 1, 1);
      insert into stock (spbm, quantity) values ('A', -2.5), ('B', 0);
    )");
  }
};

TEST_F(BooksTest, AreRightWithWhatTheTillWritesAndWhileItWrites) {
  const std::unique_ptr<Connection> till = owner.open();
  till->run("begin immediate");
  till->run("update sell set quantity = 99 where id = 1");
  EXPECT_EQ(owner.run({"check", owner.shop}), 0) << owner.out << owner.err;
  EXPECT_THAT(owner.out,
              HasSubstr("账目正确：单据 2 张（其中未结 1 张），商品行 3 行，退货 1 笔，库存 2 条"));
  till->run("rollback");
  till->run(
      "update sell set paid = 1, quantity = 7, goods_amount = 31.5, amount = 31.5 where id = 2");
  till->run("insert into member (bh, card, join_date) values ('8001', 50, '2026-01-01 00:00:00')");
  till->run(
      "insert into cardStored (cardbh, inMoney, addmoney, commerce) values ('8001', 90, 100, 150)");
  EXPECT_EQ(owner.run({"check", owner.shop}), 0);
  EXPECT_THAT(owner.out, HasSubstr("有 1 张单据已收款、还没存完"));
  EXPECT_THAT(owner.out,
              HasSubstr("充值 1 没有完成，卡内余额没有改变：卡号 8001，付款 90.00，充值 100.00"));
  till->run("update sell set phone_slip = '28A'");
  till->run("update sell set operator_id = 8 where id = 1");
  EXPECT_EQ(owner.run({"check", owner.shop}), 0) << "an operator may have been removed";
  EXPECT_THAT(owner.out, HasSubstr("请看一看：操作员 8 已不在名单里，有 1 张已结的单据"));
  EXPECT_THAT(owner.out, HasSubstr("单据 1 和 2 的付款码相同：28A"));
}

TEST_F(BooksTest, NameEachFault) {
  const struct {
    const char* damage;
    const char* fault;
  } cases[] = {
      {"update sell set quantity = 1.4 where id = 1", "单据 1 的数量是 1.4，商品行加起来是 1.3"},
      {"update sellProducts set money = 4.61 where id = 1",
       "单据 1 的商品金额是 4.80，商品行加起来是 4.81"},
      {"update sellProducts set money = 'x' where id = 2", "单据 1 的商品行 2（糖）读不出来"},
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
       "储值卡付款是 4.99，应收是 5.00，不够"},
      {"update sell set card_pay = 5 where id = 1", "单据 1 用储值卡付款，却没有卡号"},
      {"update sell set phone_pay = 5 where id = 1", "店里却从来没有设过 PhonePay"},
      {"update sqlite_sequence set seq = 1 where name = 'sell'", "流水号会重复：最大的是 2"},
      {"update sellProducts set price = 4 where id = 3",
       "单据 2 的商品行 3（面）金额是 31.50，按单价、数量、折扣应是 28.00"},
      {"update sellProducts set amount = -0.2 where id = 2",
       "商品行 2（糖）退的比卖的多，还剩 -0.2"},
      {"update un_sell set quantity = 0", "退货 1 的数量不对：0"},
      {"insert into member (bh, card, join_date) values ('8003', -1, '2026-01-01 00:00:00')",
       "储值卡 8003 的余额是负的：-1"},
      {"update stock set quantity = 'many'", "商品 A 的库存不是数字：“many”"},
      {"update sell set sell_time = 'x'", "单据 1 读不出来，收银窗口会因此打不开"},
      {"update sell set sell_time = '2026-11-22 9:00'", "单据 1 的时间不是年-月-日"},
      {"update sell set sell_time = '2031-01-01 09:00:00'",
       "单据 1 的时间 2031-01-01 09:00:00 还没有到，收银窗口会因此打不开"},
      {"update sell set sell_time = '2026-11-10 09:00:00'", "第一行商品却是 2026-11-22 09:00:00"},
      {"update sellProducts set insert_Date = '2026-11-19 09:00:00' where id = 3",
       "商品行 3（单据 2）是 2026-11-19"},
      {"update sell set cash = 5", "单据 2 还没结账，却已有付款"},
      {"delete from sys_param", "店里却从来没有设过抹零"},
      {"update sell set member_id = 9", "单据 1 的会员（内部号 9）不存在"},
      {"update sell set card_pay = 5, card_no = 'x'", "单据 1 的储值卡 x 不存在"},
      {"update sell set card_pay = 5, card_no = 'x', cash = 1", "用储值卡付款，却又有现金 1.00"},
      {"delete from spda where f_spbm = 'B'", "没有编码 B（糖），却卖过 1 行"},
      {"insert into tmda (sptm, spbm) values ('1', 'Z')", "没有编码 Z，它却有 1 个条码"},
      {"insert into tmda (sptm, spbm, xsdj) values ('1', 'A', 'x')", "条码 1（）的价格"},
      {"insert into stock values ('Z', 3)", "没有编码 Z，库存里却有 3"},
      {"delete from stock where spbm = 'B'", "商品 B 在单据 1 里卖过，库存里却没有它"},
      {"update un_sell set ratio = 12", "退货 1 的单位比例与所退的商品行 2（糖）不同"},
      {"update un_sell set discount = 0.5", "退货 1 的折扣与"},
      {"update un_sell set money = -1", "退货 1 的退款是负的：-1.00"},
      {"update un_sell set un_time = '2026-11-20 09:00:00'", "早于单据 1 的时间"},
      {"delete from un_sell", "退货记录少了 1 条"},
      {"insert into operators select 2, name, code, password, 0 from operators",
       "操作员 2 的密码是从操作员 1 那里抄来的"},
      {"drop index member_key", "少了本程序要用的东西：member_key"},
      {"create trigger extra after insert on sell begin delete from sellProducts; end",
       "多了本程序没有的东西：trigger extra"},
      {"insert into operator_rights values (9, 'sell')", "权限 sell 属于不存在的操作员 9"},
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

TEST_F(BooksTest, AreNotCalledRightWhenTheFileIsDamaged) {
  owner.scratchShop();
  EXPECT_EQ(owner.run({"check", owner.shop}), 1);
  EXPECT_THAT(owner.out + owner.err, testing::Not(HasSubstr("账目正确")));
}

TEST_F(BooksTest, MissPurchasesThatWereNotCredited) {
  owner.execute(
      "insert into member (bh, total_spent, join_date) values ('8003', 4.99, '2026-01-01 "
      "00:00:00')");
  owner.execute("update sell set member_id = 1 where id = 1");
  EXPECT_EQ(owner.run({"check", owner.shop}), 0) << "goods were taken back: " << owner.out;
  owner.execute("delete from un_sell");
  EXPECT_EQ(owner.run({"check", owner.shop}), 1);
  EXPECT_THAT(owner.out, HasSubstr("会员 8003 的累计消费是 4.99，少于已结单据减去退款的合计 5"));
}

TEST_F(BooksTest, TellWhatACardCannotHold) {
  owner.open()->runScript(R"(
    insert into member (bh, card, join_date) values ('8001', 45, '2026-01-01 00:00:00');
    insert into cardStored (cardbh, addmoney, inMoney, commerce, complete)
      values ('8001', 50, 50, 50, 1);
    update sell set card_no = '8001', card_pay = 5 where id = 1)");
  const std::pair<const char*, const char*> cases[] = {
      {"45", "账目正确"}, {"50.01", "多出来的钱没有充值记录"}, {"44.99", "少了的钱没有单据"}};
  for (const auto& [balance, text] : cases) {
    owner.execute((std::string("update member set card = ") + balance).c_str());
    owner.run({"check", owner.shop});
    EXPECT_THAT(owner.out, HasSubstr(text)) << balance;
  }
}

TEST_F(BooksTest, TakeABillOfAWronglySetClockBack) {
  const std::vector<std::string> redate = {"bill", "redate", owner.shop, "1"};
  EXPECT_EQ(owner.run(redate), 1) << "nothing is wrong with it";
  owner.execute("update sell set sell_time = '2031-01-01 09:00:00' where id = 1");
  EXPECT_EQ(owner.run(redate), 0) << owner.err;
  EXPECT_EQ(owner.value("select sell_time as value from sell where id = 1"), "2026-11-22 09:00:00");
  owner.execute("update sell set sell_time = '2031-01-01 09:00:00' where id = 1");
  owner.execute("update sellProducts set insert_Date = '2031-01-01 09:00:00' where sellId = 1");
  EXPECT_EQ(owner.run(redate), 1);
  EXPECT_THAT(owner.err, HasSubstr("--to"));
  for (const char* to : {"2026-11-23", "2026-11-22 09:00:30"}) {
    std::vector<std::string> words = redate;
    words.insert(words.end(), {"--to", to});
    EXPECT_EQ(owner.run(words) == 0, std::string(to).size() > 10) << owner.err;
  }
  EXPECT_EQ(owner.run({"check", owner.shop}), 0) << owner.out;
}

TEST_F(BooksTest, RepairMakesTheGoodsIndexNew) {
  owner.execute("insert into spda (f_spbm, f_Ggxh) values ('C', '500ml')");
  for (const char* damage : {"delete from spda_written", "delete from spda_fragments_segdir",
                             "insert into spda_fragments (docid, f_Ggxh) values (77, 'other ')",
                             "update spda_fragments_segdir set root = x'00ff', end_block = 'x'"}) {
    owner.execute(damage);
    EXPECT_EQ(owner.run({"check", owner.shop, "--repair"}), 0) << damage << owner.out << owner.err;
    EXPECT_THAT(owner.out, HasSubstr("已重建")) << damage;
    EXPECT_EQ(owner.open()->Open("select f_spbm from spda where f_Ggxh like '%00ml%'").count(), 1U);
    EXPECT_EQ(owner.run({"check", owner.shop, "--repair"}), 0);
    EXPECT_THAT(owner.out, testing::Not(HasSubstr("重建")));
  }
}

}  // namespace
