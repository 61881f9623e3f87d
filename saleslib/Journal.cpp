#include "saleslib/Journal.h"

#include <nlohmann/json.hpp>

#include "base/DateTime.h"
#include "saleslib/JournalBase.h"
#include "saleslib/JournalEntry.h"
#include "store/Connection.h"
#include "store/Transaction.h"

namespace {

constexpr int kBodyVersion = 1;
constexpr std::int64_t kOnlyTill = 1;  // a till that belongs to no shop with a server

// What no JSON can hold is replaced: a name in the books never keeps an entry from being written.
std::string textOf(const nlohmann::json& body) {
  return body.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

}  // namespace

std::optional<Journal::Last> Journal::last() const {
  Rows rows = connection_.query("select seq, time, kind, hash from fact order by seq desc limit 1");
  if (!rows.next()) return std::nullopt;
  return Last{rows.whole("seq").value_or(0), rows.text("time"), rows.text("kind"),
              rows.text("hash")};
}

bool Journal::Last::isOn() const {
  return kind != entryKind(EntryKind::kJournalEnded).key;
}

std::int64_t Journal::till() const {
  Rows rows = connection_.query("select till from link");
  return rows.next() ? rows.whole("till").value_or(kOnlyTill) : kOnlyTill;
}

bool Journal::isOn() const {
  const std::optional<Last> before = last();
  return before && before->isOn();
}

void Journal::note(EntryKind kind, const std::string& touches, const Body& body) const {
  if (!connection_.inTransaction()) {
    if (!isOn()) return;
    Transaction noting(connection_);
    note(kind, touches, body);
    return noting.commit();
  }
  // Within a transaction nobody else can add an entry meanwhile, or end the journal.
  const std::optional<Last> before = last();
  if (before && before->isOn()) append(before, kind, touches, body());
}

void Journal::note(EntryKind kind, const std::string& touches,
                   std::initializer_list<std::pair<const char*, std::string>> texts) const {
  note(kind, touches, [&] {
    nlohmann::json body = nlohmann::json::object();
    for (const auto& [name, text] : texts) body[name] = text;
    return body;
  });
}

// The last entry was read under the write lock: another program may have added one before.
void Journal::append(std::optional<Last> before, EntryKind kind, const std::string& touches,
                     nlohmann::json body) const {
  const std::string now = storedText(connection_.user().clock());
  if (before && isSetBack(before->time, now)) {
    nlohmann::json from = nlohmann::json::object();
    from["from"] = before->time;
    write(before, EntryKind::kClockSetBack, now, {}, std::move(from));
    before = last();
  }
  write(before, kind, now, touches, std::move(body));
}

void Journal::write(const std::optional<Last>& before, EntryKind kind, const std::string& time,
                    const std::string& touches, nlohmann::json body) const {
  body["v"] = kBodyVersion;
  JournalEntry entry{.seq = before ? before->seq + 1 : 1,
                     .time = time,
                     .till = till(),
                     .operatorId = connection_.user().number(),
                     .approver = connection_.user().approver(),
                     .kind = entryKind(kind).key,
                     .touches = touches,
                     .body = textOf(body),
                     .hash = {}};
  entry.hash = entry.sealedBehind(before ? before->hash : std::string());
  connection_.run(
      "insert into fact (seq, time, till, operator, approver, kind, touches, body, hash)"
      " values (?, ?, ?, ?, ?, ?, ?, ?, ?)",
      entry.seq, entry.time, entry.till, entry.operatorId, entry.approver, entry.kind,
      entry.touches, entry.body, entry.hash);
}

void Journal::begin() const {
  Transaction beginning(connection_);
  JournalBase(connection_).state();
  beginning.commit();
}

void Journal::end() const {
  note(EntryKind::kJournalEnded);
}
