#include "saleslib/StaffCard.h"

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

#include "base/Failure.h"
#include "base/Text.h"
#include "saleslib/ClsOperator.h"
#include "saleslib/Journal.h"
#include "saleslib/JournalRecords.h"
#include "saleslib/Sodium.h"
#include "store/Connection.h"
#include "store/Transaction.h"

namespace {

constexpr std::size_t kHashBytes = 32;

std::string track(std::string_view typed) {
  return trimmed(halfWidth(typed));
}

/// A generic hash, not a password's slow one: the card itself says nothing of whose it is, so that
/// it is looked up by its hash.
std::string hashOf(std::string_view typed) {
  ensure(isSwipe(typed), "a staff card is swiped");
  return hashDigits(track(typed), kHashBytes);
}

std::optional<std::int16_t> holder(Connection& connection, std::string_view typed) {
  Rows rows =
      connection.query("select operator_id from operator_cards where track = ?", hashOf(typed));
  if (!rows.next()) return std::nullopt;
  return static_cast<std::int16_t>(rows.whole("operator_id").value());
}

// Leftovers of an operator who is gone are nobody's change.
void note(Connection& connection, std::int16_t operatorId) {
  const nlohmann::json record = operatorRecord(connection, operatorId);
  if (record.is_null()) return;
  Journal(connection).note(EntryKind::kOperatorChanged, operatorId, [&record] {
    return nlohmann::json{{"operator", record}};
  });
}

}  // namespace

bool isSwipe(std::string_view typed) {
  const std::string text = track(typed);
  return text.size() > 2 && text.front() == ';' && text.back() == '?';
}

std::shared_ptr<ClsOperator> staffCardHolder(Connection& connection, std::string_view typed) {
  const std::optional<std::int16_t> id = holder(connection, typed);
  if (!id) return {};
  auto person = std::make_shared<ClsOperator>();
  person->Init(connection, *id);
  return person->Found() ? person : nullptr;
}

bool giveStaffCard(Connection& connection, std::int16_t operatorId, std::string_view typed) {
  Transaction transaction(connection);
  if (const auto other = holder(connection, typed)) return *other == operatorId;
  connection.run("delete from operator_cards where operator_id = ?", operatorId);
  connection.run("insert into operator_cards (operator_id, track) values (?, ?)", operatorId,
                 hashOf(typed));
  note(connection, operatorId);
  transaction.commit();
  return true;
}

void takeStaffCard(Connection& connection, std::int16_t operatorId) {
  Transaction transaction(connection);
  const std::int64_t taken =
      connection.run("delete from operator_cards where operator_id = ?", operatorId);
  if (taken > 0) note(connection, operatorId);
  transaction.commit();
}
