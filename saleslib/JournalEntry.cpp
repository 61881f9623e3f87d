#include "saleslib/JournalEntry.h"

#include <sodium.h>

#include <array>

#include "base/DateTime.h"
#include "saleslib/Sodium.h"
#include "store/Row.h"

namespace {

template <std::size_t Bytes>
std::string hashOf(const std::string& text) {
  startSodium();
  std::array<unsigned char, Bytes> hash{};
  crypto_generichash(hash.data(), hash.size(), reinterpret_cast<const unsigned char*>(text.data()),
                     text.size(), nullptr, 0);
  std::array<char, 2 * Bytes + 1> digits{};
  return sodium_bin2hex(digits.data(), digits.size(), hash.data(), hash.size());
}

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
  return hashOf<32>(sealed);
}

bool isSetBack(const std::string& before, const std::string& now) {
  const std::optional<DateTime> then = parseDateTime(before), time = parseDateTime(now);
  if (!then || !time || *time >= *then) return false;
  const auto seconds = [](const DateTime& each) {
    return (each.hour * 60 + each.minute) * 60 + each.second;
  };
  return then->date != time->date || seconds(*then) - seconds(*time) > 60;
}

std::string textMark(const std::string& text) {
  return hashOf<16>(text);
}
