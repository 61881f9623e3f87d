#include <filesystem>

#include "Owner.h"
#include "base/NumberText.h"
#include "saleslib/BillBooks.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/ReturnBooks.h"
#include "saleslib/ShiftBooks.h"
#include "saleslib/TopUpBooks.h"

using testing::HasSubstr;

/// A shop with a bill of before (1) and a played day: a bill in cash (2) of which goods come back,
/// a member's paid by card (3), an open one (4), a top-up, a new member.
struct JournalTest : OwnerTest {
  std::unique_ptr<Connection> till;
  ClsSysParam rules;
  int lastMember = 8002;
  std::shared_ptr<ClsOperator> cashier = std::make_shared<ClsOperator>();

  JournalTest() {
    expect(0, "", "operator add @ --number 1 --name 张三 --password 111 --right sell");
    expect(0, "", "operator add @ --number 2 --name 李四 --password 222");
    execute(R"(
      insert into spda (f_spbm, f_spmc) values ('A', '面'), ('B', '糖'), ('C', '盐');
      insert into stock (spbm, quantity) values ('A', 10), ('B', 5.5);
      insert into member (bh, name, card, password, total_spent, points, join_date) values
        ('8001', '陈', 100, '1111', 20, 2, '2026-01-01 00:00:00'),
        ('8002', '刘', 7, '2222', 0, 0, '2026-01-01 00:00:00');
      insert into sell (id, sell_time, operator_id, state, quantity, goods_amount, amount, cash)
        values (1, '2026-11-21 09:00:00', 1, 1, 1, 4, 4, 4);
      insert into sellProducts (sellId, insert_Date, bm, name, amount, price, discount, money)
        values (1, '2026-11-21 09:00:00', 'A', '面', 1, 4, 1, 4);
    )");
  }

  void play() {
    const Clock clock = [this] { return now; };
    till = open();
    till->setUser({.number = [] { return 1; }, .clock = clock});
    rules.Conn(*till);
    cashier->Init(*till, 1);
    BillBooks books(*till, rules, clock, cashier);
    const std::shared_ptr<ClsSell> first = sold(books, {{"A", 4, 2}, {"B", 1.5, 0.5}});
    settle(books, first);
    settle(books, sold(books, {{"A", 4, 1}}, 1), "8001");
    sold(books, {{"B", 1.5, 1}});
    ReturnBooks returns(*till, clock, cashier);
    const std::shared_ptr<ClsSell> bill = returns.find(first->BillNo()).bill;
    ClsSellItem& back = *bill->Items().at(0);
    EXPECT_EQ(returns.takeBack(*bill, back, 1, yuan(4)).kind, ReturnBooks::Outcome::kDone);
    const TopUp topUp{"8002", yuan(50), yuan(55), yuan(62), "", yuan(7)};
    EXPECT_EQ(TopUpBooks(*till).store(topUp).outcome, CardOutcome::kDone);
    ShiftBooks shifts(*till, clock, cashier);
    EXPECT_TRUE(shifts.open(yuan(100)) && shifts.move(yuan(5), "零钱"));
    EXPECT_TRUE(shifts.count({{1, 0, 0, 0, 0, 4}}) && shifts.close());
    ClsMember member;
    member.Init(*till, 0, clock);
    member.setBh(std::to_string(++lastMember));
    member.setName("赵");
    EXPECT_TRUE(member.Save());
    till.reset();
  }

  static Currency yuan(int number) { return Currency::fromYuan(number); }

  struct Sold {
    const char* item;
    double price, quantity;
  };
  std::shared_ptr<ClsSell> sold(BillBooks& books, const std::vector<Sold>& lines, int member = 0) {
    std::shared_ptr<ClsSell> bill = books.open();
    bill->setMemberId(member);
    for (const Sold& each : lines) {
      auto line = std::make_shared<ClsSellItem>();
      line->Init(*till, bill->BillNo(), 0, [this] { return now; });
      line->setSpCode(each.item);
      line->setSpName(each.item);
      line->setPrice(Currency::parse(generalNumber(each.price)).value());
      line->setQuantity(each.quantity);
      EXPECT_TRUE(books.ring(*line).done());
      bill->AddItem(line);
    }
    return bill;
  }
  static void settle(BillBooks& books, const std::shared_ptr<ClsSell>& bill,
                     const char* card = nullptr) {
    if (card == nullptr) {
      bill->setCash(yuan(10));
      EXPECT_EQ(books.markPaid(*bill), "");
    } else {
      bill->setCardNo(card);
      bill->setCardPay(bill->Amount());
      EXPECT_EQ(books.payByCard(*bill, "1111").outcome, CardOutcome::kDone);
    }
    EXPECT_TRUE(books.settle(*bill));
  }
};

TEST_F(JournalTest, IsKeptOnlyWhereTheOwnerWantsIt) {
  play();
  EXPECT_EQ(value("select count(*) as value from fact"), "0");
  expect(0, "账目正确", "check @");
  expect(0, "", "param set @ Journal=1");
  now.hour = 10;
  play();
  expect(0, "账目正确", "check @");
  EXPECT_THAT(out, HasSubstr("日志"));
  expect(0, "1 张三\t-\t结账\t5\t2 行，应收 8.75，现金 10", "journal @ --kind 结账");
  expect(0, "退货\t5\t2 行", "journal @ --operator 1 --from 2026-11-22");
  expect(1, "没有这一种", "journal @ --kind x");
  expect(0, "\t105.00\t104.00\t-1.00\t", "shift @");
  expect(0, "结班表 第 2 班\n            （重打）\n", "shift @ --print 2");
  expect(1, "没有班次 3", "shift @ --print 3");
  expect(0, "补打小票\t班次 2", "journal @ --operator 0");
  expect(0, "结班\t2\t", "journal @ --kind shift_closed");
  now.hour = 9;  // the clock is set back
  expect(0, "", "param set @ PointUnit=5 Journal=0");
  expect(0, "时钟倒退", "journal @ --operator 0");
  expect(0, "PointUnit\t10 改成 5", "journal @");
  now.hour = 11;
  const std::string entries = "select count(*) as value from fact", before = value(entries);
  play();
  EXPECT_EQ(value(entries), before);
  expect(0, "账目正确", "check @");
}

TEST_F(JournalTest, GoesOnWithWhatTheOwnersToolDoes) {
  expect(0, "", "param set @ Journal=1");
  play();
  execute("update sell set sell_time = '2031-01-01 09:00:00' where id = 4");
  typed = ";4711?\n";
  write("stock.csv", "spbm,quantity\nB,40\nC,3\n");
  write("member.csv", "bh,name,card\n8001,陈,80\n8009,周,5\n");
  write("goods.csv", "商品编码,条码,名称,零售价,库存\nA,690001,面,4,77\nD,690002,油,30,6\n");
  for (const char* command :
       {"bill redate @ 4", "import @ --table stock ./stock.csv",
        "import @ --table member ./member.csv",
        "import @ --table member ./member.csv --replace-accounts", "import @ ./goods.csv --yes",
        "operator password @ --number 2 --password 9", "operator card @ --number 2",
        "operator card @ --number 2 --remove", "operator remove @ --number 2",
        "operator add @ --number 4 --name 新 --password 4 --right journal",
        "param set @ ShopName=店", "param unset @ ShopName", "export @ - --table stock",
        "report @"}) {
    expect(0, "", command);
    expect(0, "账目正确", "check @");
  }
  expect(0, "设库存", "journal @ --kind stock_counted");
}

TEST_F(JournalTest, NamesWhatWasDoneFromOutside) {
  expect(0, "", "param set @ Journal=1 RoundYuan=0 PhonePay=1");
  play();
  expect(0, "账目正确", "check @");
  const std::string right = folder.file("right.mdb");
  std::filesystem::copy_file(shop, right);
  const char* const bill2 = "单据 2 与日志第";
  const char* const bill3 = "单据 3 与日志第";
  const std::pair<const char*, const char*> cases[] = {
      {bill2, "update sell set cash = 9 where id = 2"},
      {bill2, "update sell set favorable = 1 where id = 2"},
      {bill2, "update sell set bank_card = 5, cash = 5 where id = 2"},
      {bill2, "update sell set phone_pay = 5, cash = 5 where id = 2"},
      {bill2, "update sell set phone_slip = '28A' where id = 2"},
      {bill2,
       "update sell set amount = 4, goods_amount = 4 where id = 2;"
       "update sellProducts set price = 3.25, money = 3.25 where id = 2"},
      {bill2, "update sell set operator_id = 2 where id = 2"},
      {bill2, "update sell set salesman = 3 where id = 2"},
      {bill2,
       "update sell set sell_time = '2026-11-20 09:00:00' where id = 2;"
       "update sellProducts set insert_Date = '2026-11-20 09:00:00' where sellId = 2"},
      {bill2, "update sellProducts set insert_Date = '2026-11-22 09:05:02' where id = 2"},
      {bill2, "update sellProducts set bm = 'C', name = '盐' where id = 2"},
      {bill2,
       "update sellProducts set discount = 0.5, money = 2 where id = 2;"
       "update sell set goods_amount = 2.75, amount = 2.75 where id = 2"},
      {bill2, "update sellProducts set in_price = 0.5 where id = 2"},
      {bill2, "update sellProducts set ratio = 12 where id = 2"},
      {bill2,
       "delete from sellProducts where id = 3;"
       "update sell set goods_amount = 4, amount = 4, quantity = 1 where id = 2"},
      {bill3, "update sellProducts set sellId = 3 where id = 3"},
      {bill3, "update sell set member_id = 0 where id = 3"},
      {bill3, "update sell set card_no = '8002' where id = 3"},
      {bill3, "update sell set card_no = '', card_pay = 0, cash = 4 where id = 3"},
      {"单据 3 在日志第",
       "delete from sellProducts where sellId = 3; delete from sell where id = 3"},
      {"单据 3 在日志第", "update sell set state = 0 where id = 3"},
      {"单据 9 不在日志里",
       "insert into sell (id, sell_time, operator_id, state, quantity, goods_amount, amount, cash)"
       " select 9, sell_time, 1, 1, quantity, goods_amount, amount, cash from sell where id = 2;"
       "insert into sellProducts (sellId, insert_Date, bm, name, amount, price, discount, money)"
       " select 9, insert_Date, bm, name, amount, price, discount, money from sellProducts"
       " where sellId = 2"},
      {"单据 1 到 1 里有改过的",
       "update sell set amount = 3, goods_amount = 3 where id = 1;"
       "update sellProducts set price = 3, money = 3 where sellId = 1"},
      {"那时有 1 张已结的，现在有 0 张",
       "delete from sell where id = 1; delete from sellProducts where sellId = 1"},
      {"单据 4 开了单",
       "delete from sell where id = 4; delete from sellProducts where sellId = 4;"
       "update stock set quantity = quantity + 1 where spbm = 'B'"},
      {"未结的单据 8 没有开单的日志",
       "insert into sell (id, sell_time, operator_id) values"
       " (8, '2026-11-22 09:05:03', 1)"},
      {"商品 B 的库存是 4，按日志应是 2", "update sellProducts set amount = 3 where sellId = 4"},
      {"商品 A 的库存是 8.5，按日志应是 8", "update stock set quantity = 8.5 where spbm = 'A'"},
      {"商品 a 按日志有库存 8", "delete from stock where spbm = 'A'"},
      {"商品 C 的库存是 2，按日志应是 0", "insert into stock values ('C', 2)"},
      {"储值卡 8001 的余额是 90，按日志应是 96", "update member set card = 90 where id = 1"},
      {"储值卡 8001 的余额是 46",
       "update member set card = card - 50 where id = 1;"
       "update member set card = card + 50 where id = 2"},
      {"会员 8001 的累计消费是 99，按日志应是 24",
       "update member set total_spent = 99 where id = 1"},
      {"会员 8001 的积分是 900，按日志应是 2", "update member set points = 900 where id = 1"},
      {"会员 8001 的资料", "update member set discount = 0.1 where id = 1"},
      {"会员 8001 的资料", "update member set password = '1' where id = 1"},
      {"会员 8001 的资料", "update member set phone = '1' where id = 1"},
      {"会员 8003 的资料", "update member set enabled = 0 where bh = '8003'"},
      {"会员 8004 不在日志里",
       "insert into member (bh, join_date) values"
       " ('8004', '2026-01-01 00:00:00')"},
      {"会员 8003 在日志里", "delete from member where bh = '8003'"},
      {"充值 1 与日志不符", "update cardStored set inMoney = 5"},
      {"充值 1 与日志不符",
       "update cardStored set addmoney = 95, commerce = 102;"
       "update member set card = 102 where id = 2"},
      {"充值 1 在日志里",
       "delete from cardStored; update sqlite_sequence set seq = 0"
       " where name = 'cardStored'; update member set card = 7 where id = 2"},
      {"充值 2 不在日志里",
       "insert into cardStored (cardbh, addmoney, inMoney, commerce, complete) values"
       " ('8002', 5, 5, 67, 1); update member set card = 67 where id = 2"},
      {"退货 1 与日志不符", "update un_sell set money = 3"},
      {"退货 1 与日志不符", "update un_sell set operator_id = 2"},
      {"退货 1 与日志不符", "update un_sell set un_time = '2026-11-22 10:00:00'"},
      {"退货 1 在日志里",
       "delete from un_sell; update sqlite_sequence set seq = 0"
       " where name = 'un_sell'"},
      {"班次 1 与日志不符", "drop trigger shift_changed; update shift set cash_float = 50"},
      {"班次 1 与日志不符", "drop trigger shift_count_changed; update shift_count set pieces = 1"},
      {"班次 2 不在日志里",
       "insert into shift values (2, '2026-11-22 09:00:00', 1, '张三', 0, null, null, null)"},
      {"退货 2 不在日志里",
       "insert into un_sell (un_time, sell_id, item_id, quantity, money, cost,"
       " ratio, discount, operator_id) select un_time, sell_id, item_id, 1, 4,"
       " cost, ratio, discount, 1 from un_sell"},
      {"操作员 2 与日志不符", "update operators set password = '$argon2id$x' where id = 2"},
      {"操作员 2 与日志不符", "insert into operator_rights values (2, 'sell')"},
      {"操作员 1 与日志不符", "delete from operator_rights where operator_id = 1"},
      {"操作员 1 与日志不符", "update operators set name = '李四' where id = 1"},
      {"操作员 2 与日志不符", "insert into operator_cards values (2, 'x')"},
      {"操作员 7 不在日志里", "insert into operators values (7, '七', '7', '$argon2id$y', 0)"},
      {"操作员 2 在日志里", "delete from operators where id = 2"},
      {"店铺参数 PhonePay 是“0”，按日志应是“1”",
       "update sys_param set value = '0' where name = 'PhonePay'"},
      {"店铺参数 GoldRate 是“0.1”，按日志没有设过",
       "insert into sys_param values ('GoldRate', '0.1')"},
      {"店铺参数 PhonePay 按日志应是“1”，现在没有了",
       "delete from sys_param where name = 'PhonePay'"},
      {"店铺参数 Journal", "update sys_param set value = '0' where name = 'Journal'"},
      {"日志第 5 条与它的校验值不符",
       "drop trigger fact_changed; update fact set touches = 'x' where seq = 5"},
      {"日志第 9 条与它的校验值不符",
       "drop trigger fact_changed; update fact set operator = 2 where seq = 9"},
      {"日志少了第 8 条", "drop trigger fact_deleted; delete from fact where seq = 8"},
      {"会员 8003 不在日志里",
       "drop trigger fact_deleted;"
       "delete from fact where seq = (select max(seq) from fact)"},
      {"日志却是空的", "drop trigger fact_deleted; delete from fact"},
      {"在本程序以外改过",
       "drop trigger fact_changed; update fact set body = replace(body, '\"before\":\"',"
       " '\"before\":\"0') where kind = 'goods_returned'"},
  };
  for (const auto& [text, tampering] : cases) {
    execute(tampering);
    expect(1, text, "check @");
    std::filesystem::copy_file(right, shop, std::filesystem::copy_options::overwrite_existing);
  }
  EXPECT_ANY_THROW(execute("update fact set till = 2"));
  EXPECT_ANY_THROW(execute("delete from fact"));
}
