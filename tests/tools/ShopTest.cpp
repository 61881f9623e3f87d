#include "Owner.h"
#include "ThrowAwayServer.h"
#include "link/ServerLine.h"
#include "saleslib/ShopLink.h"
#include "sync/Upload.h"

using testing::HasSubstr;

struct ShopTest : OwnerTest {
  ShopTest() { at = placeOf(server); }
  static std::string placeOf(const ThrowAwayServer& server) {
    std::string place;
    for (const auto& [name, value] : server.owner()) place += name + "=" + value + "~";
    return place;
  }
  void shop(int code, const std::string& said, const std::string& words) {
    expect(code, said, "shop " + words + " --server " + at);
  }
  std::string codeOf(const std::string& till) {
    shop(0, "加入码", "add-till " + till);
    return out.substr(out.find('\n') + 1);
  }
  std::string place() const {
    return " --port " + std::to_string(server.port()) + " --database books";
  }

  ThrowAwayServer server;
  std::string at;
};

TEST_F(ShopTest, IsMadeAndJoinedAtTheCommandLine) {
  shop(1, "服务器没有照办", "tills");
  shop(0, "已建好", "init");
  shop(0, "已是最新", "init");
  shop(0, "已是最新", "upgrade");
  shop(1, "已经是主服务器", "promote --first-is-off");
  shop(1, "读不出", "init --authority ./none.crt");
  expect(0, "", "create ./office.mdb --file-password=");
  expect(0, "", "param set ./office.mdb ShopName=小店 --file-password=");
  shop(0, "新增 1 行，改动 0 行，删除 0 行", "publish ./office.mdb --file-password=");
  const std::string code = codeOf("2"), host = server.folder().string();
  shop(0, "2\t等它加入\t从没联系过", "tills");
  expect(1, "20 个字符", "enrol @ " + host + " ABC" + place());
  expect(1, "没有接受加入码", "enrol @ " + host + " 02000-00000-00000-00000" + place());
  expect(1, "连不上服务器", "enrol @ ./nowhere " + code + place());
  expect(1, "还没有加入", "enrol @ elsewhere");
  execute(
      "insert into sell (id, sell_time, operator_id, state) values (1, '2026-11-22', 1, 0);"
      "insert into sellProducts (sellId, insert_Date, bm, amount, price, discount, money)"
      " values (1, '2026-11-22', 'A', 1, 1, 1, 1)");
  expect(1, "还有没结完的单据", "enrol @ " + host + " " + code + place());
  execute("delete from sellProducts; delete from sell");
  EXPECT_FALSE(shopLink(*open())) << "what was refused has written nothing";
  execute(
      "insert into member (bh, name, card, password, join_date)"
      " values ('8001', '陈', 10, '1111', '2026-01-01 00:00:00')");
  expect(0, "", "param set @ Journal=1");
  expect(0, "机号 2", "enrol @ " + host + " " + code + place());
  EXPECT_THAT(out, HasSubstr("已取来（1 行）"));
  EXPECT_EQ(value("select value from sys_param where name = 'ShopName'"), "小店");
  expect(0, "账目正确", "check @");
  EXPECT_EQ(value("select substr(password, 1, 10) as value from member"), "$argon2id$");
  expect(0, "改成了 a,b", "enrol @ a,b");
  expect(0, "", "enrol @ " + host);
  write("goods.csv", "f_spbm,f_spmc\n1,茶\n");
  for (const char* refused : {"import @ --table spda ./goods.csv", "param set @ ShopName=x",
                              "operator add @ --number 1 --name 张三 --password 1"})
    expect(1, "shop publish", refused);
  expect(1, "连着服务器的收银机", "shop publish @ --server " + at);
  expect(1, "日志不能停", "param set @ Journal=0");
  shop(0, "已加入\t在线\t已到 0 条", "tills");
  {
    const std::unique_ptr<Connection> till = open();
    ServerLine line(tillParameters(
        {host, server.port(), "books", "till_2", shopLink(*till)->password, {}}, ""));
    Upload upload(*till, line);
    while (upload.step() == Upload::Outcome::kWent) continue;
  }
  shop(0, "查过", "check");
  server.value("insert into shop.movement values (2, 1, 1, 1, 'x', 1) returning till");
  shop(1, "不符，可用 --rebuild", "check");
  shop(1, "已按记录重新做好", "check --rebuild");
  shop(0, "查过", "check");
  server.value("alter table shop.fact disable trigger all");
  server.value("update shop.fact set body = '{}' where seq = 2 returning seq");
  shop(1, "第 2 条记录与它的校验值不符", "check");
  shop(1, "--again", "add-till 2");
  shop(0, "", "revoke 2");
  shop(0, "已停用", "tills");
}

TEST_F(ShopTest, PutsTheSecondServerInTheFirstOnesPlaceOnceThatIsOff) {
  shop(0, "已建好", "init");
  ThrowAwayServer second(ThrowAwayServer::StandbyOf{server});
  second.set("wal_receiver_timeout = 6s");  // it asks the first one after half of it
  second.reload();
  at = placeOf(second);
  shop(1, "还在运行", "promote --first-is-off --may-lose");
  server.kill();
  shop(1, "没有等这台备机", "promote --first-is-off");
  shop(1, "必须关着", "promote --may-lose");
  EXPECT_EQ(second.value("select pg_is_in_recovery()"), "t") << "what was refused did nothing";
  shop(0, "备机已经是主服务器", "promote --first-is-off --may-lose");
  EXPECT_THAT(codeOf("1"), HasSubstr("-")) << "it takes what is written";
}
