#include "saleslib/ShiftDeeds.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string_view>

#include "saleslib/JournalKinds.h"
#include "saleslib/ShiftBooks.h"
#include "store/Connection.h"

namespace {

using Json = nlohmann::json;

bool isKind(const Row& entry, EntryKind kind) {
  return entry.text("kind") == entryKind(kind).key;
}

/// A figure of an entry, as the decimal text that it is there.
Currency figure(const Json& body, const char* name) {
  const auto found = body.find(name);
  if (found == body.end() || !found->is_string()) return {};
  return Currency::parse(found->get<std::string>()).value_or(Currency());
}

// An empty bill is cancelled whenever the sale screen is left.
void addCancelled(const Json& body, ShiftSum& cancelled) {
  const auto lines = body.find("left");
  if (lines != body.end() && !lines->empty()) cancelled.add(figure(body, "sum"));
}

void addDeleted(const Json& body, ShiftSum& deleted) {
  const auto line = body.find("line");
  if (line != body.end()) deleted.add(figure(*line, "money"));
}

void add(const Row& entry, ShiftDeeds& deeds, std::int64_t& counts) {
  if (isKind(entry, EntryKind::kDrawerOpened)) ++deeds.drawerOpened;
  if (isKind(entry, EntryKind::kShiftCounted)) ++counts;
  if (isKind(entry, EntryKind::kApprovalGiven)) ++deeds.approvals;
  const bool isCancelled = isKind(entry, EntryKind::kBillCancelled);
  if (!isCancelled && !isKind(entry, EntryKind::kLineDeleted)) return;
  const Json body = Json::parse(entry.text("body"), nullptr, false);
  if (!body.is_object()) return;
  isCancelled ? addCancelled(body, deeds.cancelled) : addDeleted(body, deeds.deleted);
}

// Where it ends. Looked for from the moment on at which the shift was closed.
Rows lastEntry(Connection& connection, const ShiftHead& shift) {
  if (!shift.closed)
    return connection.query("select seq, kind, hash from fact order by seq desc limit 1");
  return connection.query(
      "select seq, kind, hash from fact where time >= ? and kind = ? and touches = ?"
      " order by time, seq limit 1",
      *shift.closed, entryKind(EntryKind::kShiftClosed).key, std::to_string(shift.number));
}

std::int64_t firstEntry(Connection& connection, const ShiftHead& shift, std::int64_t last) {
  Rows opened = connection.query(
      "select seq from fact where time >= ? and kind = ? and touches = ?"
      " order by time, seq limit 1",
      shift.opened, entryKind(EntryKind::kShiftOpened).key, std::to_string(shift.number));
  if (opened.next()) return opened.whole("seq").value_or(last);
  Rows begun = connection.query(
      "select seq from fact where time >= ? and kind = ? order by time, seq limit 1", shift.opened,
      entryKind(EntryKind::kJournalBegun).key);
  return begun.next() ? begun.whole("seq").value_or(last) : last;
}

}  // namespace

std::optional<ShiftJournal> journalOf(Connection& connection, const ShiftHead& shift) {
  Rows last = lastEntry(connection, shift);
  if (!last.next() || isKind(last, EntryKind::kJournalEnded)) return std::nullopt;
  std::optional<ShiftJournal> part(std::in_place);
  part->last = last.whole("seq").value_or(0);
  part->lastHash = last.text("hash");
  part->first = firstEntry(connection, shift, part->last);
  return part;
}

// Each count of the drawer opened it, and has a line of its own on the sheet.
ShiftDeeds deedsIn(Connection& connection, const ShiftJournal& part) {
  ShiftDeeds deeds;
  std::int64_t counts = 0;
  Rows entries = connection.query("select kind, body from fact where seq between ? and ?",
                                  part.first, part.last);
  while (entries.next()) add(entries, deeds, counts);
  deeds.drawerOpened = std::max<std::int64_t>(0, deeds.drawerOpened - counts);
  return deeds;
}
