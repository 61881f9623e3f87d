#include "sync/Facts.h"

#include <nlohmann/json.hpp>
#include <optional>

#include "store/Connection.h"

namespace {

using Json = nlohmann::json;

constexpr std::size_t kMostAtOnce = 64;
constexpr std::size_t kMostBytes = 262'144;  // together; a longer entry goes alone

std::string withoutNul(std::string text) {
  for (std::size_t at = 0; (at = text.find('\0', at)) != std::string::npos;)
    text.replace(at, 1, "\uFFFD");
  return text;
}

Json numberOrNull(const std::optional<std::int64_t>& number) {
  return number ? Json(*number) : Json();
}

}  // namespace

bool hasEntry(Connection& connection, const Place& place) {
  if (place.seq == 0) return place.hash.empty();
  return connection.query("select 1 from fact where seq = ? and hash = ?", place.seq, place.hash)
      .next();
}

std::vector<JournalEntry> nextEntries(Connection& connection, const Place& behind) {
  std::vector<JournalEntry> entries;
  std::size_t bytes = 0;
  Rows rows = connection.query("select * from fact where seq > ? order by seq", behind.seq);
  while (entries.size() < kMostAtOnce && rows.next()) {
    JournalEntry entry = JournalEntry::fromRow(rows);
    bytes += entry.body.size();
    if (!entries.empty() && bytes > kMostBytes) break;
    entries.push_back(std::move(entry));
  }
  return entries;
}

std::vector<Place> lastEntries(Connection& connection, std::int64_t before, int most) {
  std::vector<Place> places;
  Rows rows = connection.query("select seq, hash from fact where seq < ? order by seq desc limit ?",
                               before, static_cast<std::int64_t>(most));
  while (rows.next()) places.push_back({rows.whole("seq").value_or(0), rows.text("hash")});
  return places;
}

std::string entriesText(const std::vector<JournalEntry>& entries) {
  Json all = Json::array();
  for (const JournalEntry& entry : entries) {
    all.push_back({{"seq", entry.seq},
                   {"time", withoutNul(entry.time)},
                   {"till", entry.till},
                   {"operator", numberOrNull(entry.operatorId)},
                   {"approver", numberOrNull(entry.approver)},
                   {"kind", withoutNul(entry.kind)},
                   {"touches", withoutNul(entry.touches)},
                   {"body", withoutNul(entry.body)},
                   {"hash", withoutNul(entry.hash)}});
  }
  return all.dump(-1, ' ', false, Json::error_handler_t::replace);
}
