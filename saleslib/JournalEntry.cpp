#include "saleslib/JournalEntry.h"

#include "base/DateTime.h"
#include "saleslib/Sodium.h"
#include "store/Row.h"

namespace {

constexpr std::int64_t kToleratedBack = 60;  // seconds, for a clock that is put right
constexpr std::size_t kSealBytes = 32, kMarkBytes = 16;

void append(std::string& sealed, const std::string& field) {
  sealed.append(std::to_string(field.size())).append(":").append(field);
}
void append(std::string& sealed, std::int64_t field) {
  append(sealed, std::to_string(field));
}
void append(std::string& sealed, const std::optional<std::int64_t>& field) {
  field ? append(sealed, *field) : static_cast<void>(sealed.append("-"));
}

}  // namespace

JournalEntry JournalEntry::fromRow(const Row& row) {
  return {.seq = row.whole("seq").value_or(0),
          .time = row.text("time"),
          .till = row.whole("till").value_or(0),
          .operatorId = row.whole("operator"),
          .approver = row.whole("approver"),
          .kind = row.text("kind"),
          .touches = row.text("touches"),
          .body = row.text("body"),
          .hash = row.text("hash")};
}

std::string JournalEntry::sealedBehind(const std::string& before) const {
  std::string sealed;
  sealed.reserve(before.size() + body.size() + 200);
  append(sealed, before);
  append(sealed, seq);
  append(sealed, time);
  append(sealed, till);
  append(sealed, operatorId);
  append(sealed, approver);
  append(sealed, kind);
  append(sealed, touches);
  append(sealed, body);
  return hashDigits(sealed, kSealBytes);
}

bool isSetBack(const std::string& before, const std::string& now) {
  const std::optional<DateTime> then = parseDateTime(before), time = parseDateTime(now);
  if (!then || !time) return false;
  const std::int64_t back = secondsBetween(*time, *then);
  return back > kToleratedBack || (back > 0 && then->date != time->date);
}

std::string textMark(const std::string& text) {
  return hashDigits(text, kMarkBytes);
}
