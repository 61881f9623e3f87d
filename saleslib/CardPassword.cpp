#include "saleslib/CardPassword.h"

#include <cstdint>
#include <utility>
#include <vector>

#include "saleslib/JournalBase.h"
#include "saleslib/PasswordHash.h"
#include "saleslib/ShopLink.h"
#include "store/Connection.h"

namespace {

std::string hashOf(const std::string& typed) {
  return passwordHash(typed, HashCost::kCard);
}

}  // namespace

std::string keptCardPassword(Connection& connection, const std::string& typed) {
  return typed.empty() || !shopLink(connection) ? typed : hashOf(typed);
}

bool isCardPassword(const std::string& kept, const std::string& typed) {
  return isHash(kept) ? passwordMatches(kept, typed) : kept == typed;
}

void hashCardPasswords(Connection& connection) {
  std::vector<std::pair<std::int64_t, std::string>> bare;
  Rows rows = connection.query("select id, password from member where password <> ''");
  while (rows.next()) {
    std::string password = rows.text("password");
    if (!isHash(password)) bare.emplace_back(rows.whole("id").value_or(0), std::move(password));
  }
  for (const auto& [member, password] : bare)
    connection.run("update member set password = ? where id = ?", hashOf(password), member);
  if (!bare.empty()) JournalBase(connection).noteMembers(INT64_MAX);
}
