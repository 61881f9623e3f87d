#include "server/Joining.h"

#include "base/Failure.h"
#include "base/Words.h"
#include "link/AuthorityFile.h"
#include "link/ServerLine.h"
#include "server/JoinCode.h"
#include "server/ShopServer.h"
#include "store/Connection.h"

namespace {

ShopServer::Joined enrolled(const ServerAddress& address, int till, const std::string& password) {
  ServerLine line(joiningParameters(address));
  try {
    return ShopServer::enrol(line, till, password);
  } catch (const Failure& failure) {
    // Only a server that was reached speaks of who wants to log in.
    const std::string words = failure.what();
    if (words.find(address.user) == std::string::npos) throw;
    throw Failure(
        Words::tr("服务器没有接受加入码：打错了、用过了、过期了，或者没有允许这台电脑。%1", words));
  }
}

// The first time that the certificate is looked at.
void requireKnown(const ServerAddress& address) {
  const AuthorityFile authority(address.authority);
  ServerLine line(tillParameters(address, authority.path()));
  const ServerAnswer answer = line.ask("select 1");
  if (answer.isDone()) return;
  if (answer.state != ServerAnswer::kWrongCertificate)
    throw Failure(Words::tr("服务器没有再回应。加入码已经用掉，请再要一个。%1", answer.text));
  throw Failure(
      Words::tr("服务器的证书没有通过：它不是店铺的证书签的，或者上面没有“%1”。加入码已经"
                "用掉，改好证书以后再要一个。%2",
                address.host, answer.text));
}

}  // namespace

void requireJoinable(Connection& file) {
  if (file.query("select 1 from sell join sellProducts on sellId = sell.id where state = 0").next())
    throw Failure(Words::tr("还有没结完的单据，请先在前台销售里结完或者取消。"));
  if (file.query("select 1 from shift where closed is null").next())
    throw Failure(Words::tr("班次还开着，请先结班。"));
}

// The server knows the new password before the file does: whoever is cut short in between asks for
// another code, and nothing was written here.
JoinedShop joinAtServer(const JoinRequest& request) {
  const std::optional<JoinCode> code = JoinCode::parse(request.code);
  if (!code) throw Failure(Words::tr("加入码有 20 个字符，写的不是：%1", request.code));
  ServerAddress address{.host = request.host,
                        .port = request.port,
                        .database = request.database,
                        .user = "till_" + std::to_string(code->till),
                        .password = code->secret};
  const std::string password = drawPassword();
  const ShopServer::Joined joined = enrolled(address, code->till, password);
  address.password = password;
  address.authority = joined.authority;
  requireKnown(address);
  return {{.till = code->till,
           .epoch = joined.epoch,
           .host = request.host,
           .port = request.port,
           .database = request.database,
           .password = password,
           .authority = joined.authority},
          joined.highestBill};
}
