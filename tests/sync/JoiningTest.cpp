#include <cstdlib>
#include <fstream>
#include <iterator>

#include "link/AuthorityFile.h"
#include "saleslib/ClsSysParam.h"
#include "server/Joining.h"
#include "sync/ShopServerFixture.h"

using testing::EndsWith;
using testing::HasSubstr;
using testing::ThrowsMessage;

struct JoiningTest : ShopServerFixture {
  static ServerAnswer asTill(int till, const std::string& password, const char* statement) {
    return ServerLine(joiningParameters(address(till, password))).ask(statement);
  }
};

TEST_F(JoiningTest, OpensTheFunctionsAndNothingElseToATill) {
  join(1, "one");
  join(2, "two");
  const char* const kHello = "select * from api.hello(1, 0, 0, '')";
  EXPECT_TRUE(asTill(1, "password", kHello).isDone());
  EXPECT_EQ(asTill(2, "password", kHello).state, "TL001") << "who asks is who logged in";
  for (const char* forbidden :
       {"select * from shop.till", "delete from shop.fact", "select shop.rebuild()",
        "create table mine (a int)", "set role shop_keeper", "alter role till_2 login",
        "copy (select 1) to program 'true'"}) {
    EXPECT_EQ(asTill(1, "password", forbidden).state, "42501") << forbidden;
  }
  EXPECT_EQ(asTill(1, "password", "select * from api.enrol(1, 'SCRAM-SHA-256$')").state, "TL001");
  EXPECT_EQ(asTill(1, "another", kHello).state, "28P01");
  const auto till = join(3, "three");
  shop().revoke(3);
  EXPECT_EQ(till->bring(), -1) << "it is told that it is not wanted, and not that nobody is there";
  EXPECT_THAT(till->upload->fault(),
              EndsWith("FATAL: password authentication failed for user \"till_3\""));
  shop().revoke(1);
  EXPECT_EQ(asTill(1, "password", kHello).kind, ServerAnswer::kUnknown);
  EXPECT_EQ(shop().tills().at(0).status, "revoked");
}

TEST_F(JoiningTest, TakesACodeOnceAndNumbersBehindWhatIsKnown) {
  auto till = join(3, "till");
  till->till.sell(1);
  till->bring();
  ClsSysParam parameters;
  parameters.Conn(*till->till.shop);
  EXPECT_THAT(parameters.set("Journal", "0"), HasSubstr("不能停")) << "the journal is what goes up";
  EXPECT_THROW(shop().addTill(3, false), Failure) << "it would shut out the till that has joined";
  till.reset();
  const auto another = join(3, "another", true);  // its disk was lost
  EXPECT_EQ(another->till.sell(1).first, 30'001'002) << "unknown bills may have been given out";
  another->bring();
  EXPECT_EQ(value("select count(*) from shop.sale"), "2");
  expectSound();

  const JoinCode code = JoinCode::draw(213);
  EXPECT_EQ(JoinCode::parse(" " + code.shown())->secret, code.secret);
  EXPECT_EQ(JoinCode::parse("6loo0-00000-00000-0000i")->till, 6 * 32 + 1);
  EXPECT_FALSE(JoinCode::parse(code.secret + "0") || JoinCode::parse("U"));
}

/// The shop's own authority, made by the usual tool.
class CertifiedServer : public testing::Test {
 protected:
  CertifiedServer() {
    certify("authority", "-x509 -subj /CN=shop");
    certify("other", "-x509 -subj /CN=shop");
    certify("server", "-x509 -subj /CN=till-server -addext subjectAltName=IP:127.0.0.1 -CA " +
                          folder.file("authority.crt") + " -CAkey " + folder.file("authority.key"));
    server.set("ssl = on");
    server.set("ssl_cert_file = '" + server.write("server.crt", read("server.crt")) + "'");
    server.set("ssl_key_file = '" + server.write("server.key", read("server.key")) + "'");
    server.allow("hostssl all +tills 127.0.0.1/32 scram-sha-256\nhost all all 127.0.0.1/32 reject");
    server.stop();
    server.start();
  }
  void certify(const std::string& name, const std::string& options) {
    const std::string command = "openssl req -newkey rsa:2048 -nodes -days 2 -keyout " +
                                folder.file(name + ".key") + " -out " + folder.file(name + ".crt") +
                                " " + options + " 2>/dev/null";
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
  }
  std::string read(const std::string& name) const {
    std::ifstream file(folder.file(name));
    return {std::istreambuf_iterator<char>(file), {}};
  }

  TemporaryFolder folder;
  ThrowAwayServer server{ThrowAwayServer::Reach::kPort};
};

TEST_F(CertifiedServer, IsKnownByItsAuthorityAfterTheCode) {
  ServerLine owner(server.owner());
  ShopServer shop(owner);
  shop.init(read("authority.crt"));
  const JoinCode code = shop.addTill(1, false);
  ServerAddress till{"127.0.0.1", server.port(), "books", "till_1", code.secret, {}};
  ServerLine joining(joiningParameters(till));
  till.authority = ShopServer::enrol(joining, 1, "password").authority;
  EXPECT_EQ(till.authority, read("authority.crt"));
  const auto hello = [&till](const std::string& certificate, LineParameters more = {}) {
    const AuthorityFile authority(certificate);
    LineParameters parameters = tillParameters(till, authority.path());
    parameters.insert(parameters.end(), more.begin(), more.end());
    return ServerLine(parameters).ask("select * from api.hello(1, 0, 0, '')");
  };
  EXPECT_EQ(hello(till.authority).state, "28P01") << "the code is used up";
  till.password = "password";
  EXPECT_TRUE(hello(till.authority).isDone());
  const char* const kWrong = ServerAnswer::kWrongCertificate;
  EXPECT_EQ(hello(read("other.crt")).state, kWrong);
  till.host = "localhost";
  EXPECT_EQ(hello(till.authority).state, kWrong) << "the certificate is for another name";

  const auto joinWith = [&](const JoinCode& typed) {
    return [&, typed] { joinAtServer({"127.0.0.1", typed.shown(), server.port(), "books"}); };
  };
  EXPECT_THAT(joinWith(code), ThrowsMessage<Failure>(HasSubstr("服务器没有接受加入码")));
  shop.init(read("other.crt"));
  EXPECT_THAT(joinWith(shop.addTill(2, false)),
              ThrowsMessage<Failure>(HasSubstr("服务器的证书没有通过")));
}
