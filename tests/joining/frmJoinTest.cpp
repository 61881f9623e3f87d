#include "joining/frmJoin.h"

#include "Hands.h"
#include "ShopFixture.h"
#include "ThrowAwayServer.h"
#include "app/SyncProgram.h"
#include "server/ShopServer.h"

constexpr const char* kWindow = "frmJoin";
constexpr const char* kFields = "txtServer txtCode cmdOk";

class frmJoinTest : public ShopFixture {
 protected:
  frmJoinTest() : line(ownersOf(server)) { ShopServer(line).init(""); }
  static LineParameters ownersOf(ThrowAwayServer& server) {
    server.value("create database till");
    LineParameters parameters = server.owner();
    parameters.back().second = "till";
    return parameters;
  }
  QString code() { return QString::fromStdString(ShopServer(line).addTill(7, true).shown()); }

  Hands hands;
  ThrowAwayServer server;
  ServerLine line;
  frmJoin dialog{pos};
};

TEST_F(frmJoinTest, TheOwnerTypesServerAndCodeAndTheTillBelongsToTheShop) {
  const QString host = QString::fromStdString(server.folder().string()), theCode = code();
  const std::string kept = host.toStdString() + "|ABC|加入(&J)@txtCode";
  hands.type(kWindow, host + "\nABC\n").says("messageBox", "加入码有 20 个字符，写的不是：ABC");
  hands.see(kWindow, kFields, kept.c_str());
  hands.type(kWindow, "07000-00000-00000-00000\n");
  hands.says("messageBox", "服务器没有接受加入码");
  hands.at(kWindow, [&](QWidget&) {
    EXPECT_FALSE(shopLink(*pos.gConn)) << "what was refused has written nothing";
    EXPECT_FALSE(pos.sync);
    Hands::typeNow(theCode + "\n");
  });
  hands.says("messageBox", "已经加入，机号 7");
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  EXPECT_EQ(shopLink(*pos.gConn)->till, 7);
  EXPECT_TRUE(pos.cards && pos.sync) << "from now on, without being started anew";
}
