#include "saleslib/ClsLogin.h"

#include <charconv>
#include <cstdint>
#include <optional>

#include "base/Failure.h"
#include "base/Words.h"
#include "saleslib/ClsOperator.h"
#include "saleslib/Journal.h"
#include "saleslib/PasswordHash.h"
#include "store/Connection.h"
#include "store/StoreError.h"

namespace {

/// Digits only: a blank or a sign more is another number.
std::optional<std::int16_t> operatorNumber(std::string_view text) {
  std::int16_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

std::optional<std::string> storedHash(Connection& connection, std::int16_t number) {
  Rows rows = connection.query("select password from operators where id = ?", number);
  if (!rows.next()) return std::nullopt;
  return rows.text("password");
}

}  // namespace

void ClsLogin::Conn(Connection& connection) {
  connection_ = &connection;
}

// A refusal stays one when it cannot be noted; then it says why not.
void ClsLogin::note(const std::string& number) {
  try {
    Journal(*connection_).note(EntryKind::kLoginRefused, number);
  } catch (const StoreError& error) {
    errText_ = error.what();
  }
}

bool ClsLogin::Check(std::string_view number, std::string_view password) {
  ensure(connection_ != nullptr, "ClsLogin is bound before it is used");
  operator_.reset();
  errText_.clear();
  const std::optional<std::int16_t> id = operatorNumber(number);
  const std::optional<std::string> hash = id ? storedHash(*connection_, *id) : std::nullopt;
  const bool matches = passwordMatches(hash.value_or(nobodysHash()), password);
  if (!hash || !matches) {
    errText_ = Words::tr("用户编号或密码不正确！");
    note(id ? std::to_string(*id) : std::string());
    return false;
  }
  operator_ = std::make_shared<ClsOperator>();
  operator_->Init(*connection_, *id);
  return true;
}
