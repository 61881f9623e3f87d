#include <filesystem>

#include "Owner.h"

using testing::HasSubstr;

// A settled bill of two lines with a return, an open bill that is being rung, a card topped up.
struct BooksTest : OwnerTest {
  BooksTest() {
    execute(R"(
      insert into operators (id, name, code, password) values (1, '张三', '01', '$argon2id$1');
      insert into sys_param values ('RoundYuan', '1');
      insert into spda (f_spbm, f_spmc, f_Ggxh) values ('A', '面', ''), ('B', '糖', '500ml');
      insert into member (bh, card, join_date) values ('8001', 50, '2026-01-01 00:00:00');
      insert into cardStored (cardbh, addmoney, inMoney, commerce, complete)
        values ('8001', 50, 50, 50, 1);
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

TEST_F(BooksTest, AreRightWhileTheTillWrites) {
  const std::unique_ptr<Connection> till = open();
  till->runScript("begin immediate; update sell set quantity = 99 where id = 1");
  expect(0, "账目正确：单据 2 张（其中未结 1 张），商品行 3 行，退货 1 笔，库存 2 条", "check @");
}

TEST_F(BooksTest, NameEachFaultAndWhatIsWorthALook) {
  const std::tuple<int, const char*, const char*> cases[] = {
      {0, "单据 1 和 2 的付款码相同：28A", "update sell set phone_slip = '28A'"},
      {0, "请看一看：操作员 8 已不在名单里，有 1 张已结的单据",
       "update sell set operator_id = 8 where id = 1"},
      {0, "请看一看：有一次商品导入还没有写完，等着写入 7 行",
       "insert into goods_in values (1, 5, 1, 9, 2)"},
      {0, "请看一看：有一次商品导入没有读完就结束了，或者正在读，读了 9 行，什么也没有写入",
       "insert into goods_in values (1, 5, 0, 9, 0)"},
      {0, "有 1 张单据已收款、还没存完",
       "update sell set paid = 1, quantity = 7, goods_amount = 31.5, amount = 31.5 where id = 2"},
      {0, "充值 1 没有完成，卡内余额没有改变：卡号 8001，付款 50.00，充值 50.00",
       "update cardStored set complete = 0"},
      {0, "账目正确",
       "update sell set card_no = '8001', card_pay = 5 where id = 1; update member set card = 45"},
      {1, "多出来的钱没有充值记录", "update member set card = 50.01"},
      {1, "少了的钱没有单据", "update member set card = 49.99"},
      {0, "账目正确", "update sell set member_id = 1; update member set total_spent = 4.99"},
      {1, "会员 8001 的累计消费是 4.99，少于已结单据减去退款的合计 5",
       "update sell set member_id = 1 where id = 1; update member set total_spent = 4.99;"
       "delete from un_sell"},
      {1, "单据 1 的数量是 1.4，商品行加起来是 1.3", "update sell set quantity = 1.4 where id = 1"},
      {1, "单据 1 的商品金额是 4.80，商品行加起来是 4.81",
       "update sellProducts set money = 4.61 where id = 1"},
      {1, "单据 1 的商品行 2（糖）读不出来", "update sellProducts set money = 'x' where id = 2"},
      {1, "商品行 3（面）的单据 9 不存在", "update sellProducts set sellId = 9 where id = 3"},
      {1, "单据 5 的数量是 1，商品行加起来是 0",
       "insert into sell (id, sell_time, operator_id, state, quantity, goods_amount) "
       "values (5, '2026-11-22 09:00:00', 1, 1, 1, 1)"},
      {1, "未结的单据 2 的操作员 8 不存在", "update sell set operator_id = 8 where id = 2"},
      {1, "单据 2 的状态不是", "update sell set state = 7 where id = 2"},
      {1, "单据 1 属于班次 7，却没有这个班次", "update sell set shift = 7 where id = 1"},
      {1, "少了班次 1",
       "insert into shift values (2, '2026-11-22 09:00:00', 1, '张三', 0, null, null, null)"},
      {1,
       "班次 1 结班时是单据 0 笔 0.00 元，钱箱现金 0.00 元；按账上的单据、充值、退货和存取款"
       "却是单据 1 笔 5.00 元，钱箱现金 5.00 元",
       "update sell set shift = 1, cash_kept = 5 where id = 1; insert into shift values"
       " (1, '2026-11-22 09:00:00', 1, '张三', 0, '2026-11-22 09:01:00', 1, '张三')"},
      {1, "退货 1 所退的商品行 3 不在单据 1 里", "update un_sell set item_id = 3"},
      {1, "单据 1 已结，却还带着收款未存的标记", "update sell set paid = 1 where id = 1"},
      {1, "单据 1 的应收是 6.00，商品金额是 4.80", "update sell set amount = 6 where id = 1"},
      {1, "储值卡付款是 4.99，应收是 5.00，不够",
       "update sell set card_pay = 4.99, card_no = '8001' where id = 1"},
      {1, "单据 1 用储值卡付款，却没有卡号", "update sell set card_pay = 5 where id = 1"},
      {1, "店里却从来没有设过 PhonePay", "update sell set phone_pay = 5 where id = 1"},
      {1, "流水号会重复：最大的是 2", "update sqlite_sequence set seq = 1 where name = 'sell'"},
      {1, "单据 2 的商品行 3（面）金额是 31.50，按单价、数量、折扣应是 28.00",
       "update sellProducts set price = 4 where id = 3"},
      {1, "商品行 2（糖）退的比卖的多，还剩 -0.2",
       "update sellProducts set amount = -0.2 where id = 2"},
      {1, "退货 1 的数量不对：0", "update un_sell set quantity = 0"},
      {1, "储值卡 8001 的余额是负的：-1", "update member set card = -1"},
      {1, "商品 A 的库存不是数字：“many”", "update stock set quantity = 'many'"},
      {1, "单据 1 读不出来，收银窗口会因此打不开", "update sell set sell_time = 'x'"},
      {1, "单据 1 的时间不是年-月-日", "update sell set sell_time = '2026-11-22 9:00'"},
      {1, "单据 1 的时间 2031-01-01 09:00:00 还没有到，收银窗口会因此打不开",
       "update sell set sell_time = '2031-01-01 09:00:00'"},
      {1, "第一行商品却是 2026-11-22 09:00:00",
       "update sell set sell_time = '2026-11-10 09:00:00'"},
      {1, "商品行 3（单据 2）是 2026-11-19",
       "update sellProducts set insert_Date = '2026-11-19 09:00:00' where id = 3"},
      {1, "单据 2 还没结账，却已有付款", "update sell set cash = 5"},
      {1, "店里却从来没有设过抹零", "delete from sys_param"},
      {1, "单据 1 的会员（内部号 9）不存在", "update sell set member_id = 9"},
      {1, "单据 1 的储值卡 x 不存在", "update sell set card_pay = 5, card_no = 'x'"},
      {1, "用储值卡付款，却又有现金 1.00", "update sell set card_pay = 5, card_no = 'x', cash = 1"},
      {1, "没有编码 B（糖），却卖过 1 行", "delete from spda where f_spbm = 'B'"},
      {1, "没有编码 Z，它却有 1 个条码", "insert into tmda (sptm, spbm) values ('1', 'Z')"},
      {1, "条码 1（）的价格", "insert into tmda (sptm, spbm, xsdj) values ('1', 'A', 'x')"},
      {1, "没有编码 Z，库存里却有 3", "insert into stock values ('Z', 3)"},
      {1, "商品 B 在单据 1 里卖过，库存里却没有它", "delete from stock where spbm = 'B'"},
      {1, "退货 1 的单位比例与所退的商品行 2（糖）不同", "update un_sell set ratio = 12"},
      {1, "退货 1 的折扣与", "update un_sell set discount = 0.5"},
      {1, "退货 1 的退款是负的：-1.00", "update un_sell set money = -1"},
      {1, "早于单据 1 的时间", "update un_sell set un_time = '2026-11-20 09:00:00'"},
      {1, "退货记录少了 1 条", "delete from un_sell"},
      {1, "操作员 2 的密码是从操作员 1 那里抄来的",
       "insert into operators select 2, name, code, password, 0 from operators"},
      {1, "少了本程序要用的东西：member_key", "drop index member_key"},
      {1, "多了本程序没有的东西：trigger extra",
       "create trigger extra after insert on sell begin delete from sellProducts; end"},
      {1, "权限 sell 属于不存在的操作员 9", "insert into operator_rights values (9, 'sell')"}};
  const std::string right = folder.file("right.mdb");
  std::filesystem::copy_file(shop, right);
  for (const auto& [code, text, damage] : cases) {
    execute(damage);
    expect(code, text, "check @");
    EXPECT_EQ(code == 0, out.find("账目正确") != std::string::npos) << damage;
    std::filesystem::copy_file(right, shop, std::filesystem::copy_options::overwrite_existing);
  }
  scratchShop();
  EXPECT_EQ(run("check @"), 1);
  EXPECT_THAT(out + err, Not(HasSubstr("账目正确")));
}

TEST_F(BooksTest, TakeABillOfAWronglySetClockBack) {
  const std::string sellTime = "select sell_time as value from sell where id = 1";
  expect(1, "", "bill redate @ 1");  // nothing is wrong with it
  execute("update sell set sell_time = '2031-01-01 09:00:00' where id = 1");
  expect(0, "", "bill redate @ 1");
  EXPECT_EQ(value(sellTime), "2026-11-22 09:00:00");
  execute(
      "update sell set sell_time = '2031-01-01 09:00:00' where id = 1;"
      "update sellProducts set insert_Date = '2031-01-01 09:00:00' where sellId = 1");
  expect(1, "--to", "bill redate @ 1");
  expect(1, "", "bill redate @ 1 --to 2026-11-23");
  expect(0, "", "bill redate @ 1 --to 2026-11-22~09:00:30");
  EXPECT_EQ(value(sellTime), "2026-11-22 09:00:30");
  expect(0, "", "check @");
}

TEST_F(BooksTest, RepairMakesTheGoodsIndexNew) {
  for (const char* damage : {"delete from spda_written", "delete from spda_fragments_segdir",
                             "insert into spda_fragments (docid, f_Ggxh) values (77, 'other ')",
                             "update spda_fragments_segdir set root = x'00ff', end_block = 'x'"}) {
    execute(damage);
    expect(0, "已重建", "check @ --repair");
    EXPECT_EQ(open()->Open("select f_spbm from spda where f_Ggxh like '%00ml%'").count(), 1U);
    expect(0, "账目正确", "check @ --repair");
    EXPECT_THAT(out, Not(HasSubstr("重建"))) << damage;
  }
}
