#include "base/DateTime.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <vector>

#include "base/Failure.h"
#include "base/Text.h"

namespace {

constexpr Date kFirstDate{1, 1, 1};
constexpr Date kLastDate{9999, 12, 31};

std::chrono::year_month_day civil(const Date& date) {
  return std::chrono::year(date.year) / std::chrono::month(static_cast<unsigned>(date.month)) /
         std::chrono::day(static_cast<unsigned>(date.day));
}

/// Days since 1970-01-01.
std::int64_t dayNumber(const Date& date) {
  return std::chrono::sys_days(civil(date)).time_since_epoch().count();
}

/// Numbers joined by a separator, two digits at least ("09:05:03"), the first with `width`.
template <std::size_t N>
std::string joined(const std::array<int, N>& parts, int width, char separator) {
  std::string text;
  for (std::size_t i = 0; i < N; ++i) {
    std::array<char, 16> digits{};
    std::snprintf(digits.data(), digits.size(), "%0*d", i == 0 ? width : 2, parts[i]);
    if (i > 0) text += separator;
    text += digits.data();
  }
  return text;
}

/// Takes `fewest` to `most` digits off the front of the text.
std::optional<int> takeNumber(std::string_view& text, std::size_t fewest, std::size_t most) {
  int number = 0;
  std::size_t count = 0;
  for (; count < most && count < text.size(); ++count) {
    const char c = text[count];
    if (c < '0' || c > '9') break;
    number = number * 10 + (c - '0');
  }
  if (count < fewest) return std::nullopt;
  text.remove_prefix(count);
  return number;
}

bool take(std::string_view& text, char wanted) {
  if (!text.starts_with(wanted)) return false;
  text.remove_prefix(1);
  return true;
}

bool isDate(const Date& date) {
  return date.year >= kFirstDate.year && civil(date).ok();
}

std::optional<Date> takeDate(std::string_view& text) {
  const auto year = takeNumber(text, 4, 4);
  const char separator = text.starts_with('/') ? '/' : '-';
  if (!year || !take(text, separator)) return std::nullopt;
  const auto month = takeNumber(text, 1, 2);
  if (!month || !take(text, separator)) return std::nullopt;
  const auto day = takeNumber(text, 1, 2);
  if (!day) return std::nullopt;
  const Date date{*year, *month, *day};
  if (!isDate(date)) return std::nullopt;
  return date;
}

bool isTime(const DateTime& time) {
  return time.hour < 24 && time.minute < 60 && time.second < 60;
}

/// The numbers of a typed date or time, which are divided by any of the separators. Nothing when
/// there is anything else.
std::optional<std::vector<int>> typedParts(std::string_view text, std::string_view separators) {
  std::vector<int> parts;
  while (const auto part = takeNumber(text, 1, 4)) {
    parts.push_back(*part);
    if (text.empty()) return parts;
    if (separators.find(text.front()) == std::string_view::npos) return std::nullopt;
    text.remove_prefix(1);
  }
  return std::nullopt;
}

bool isDigits(std::string_view text) {
  return text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// "9:05" or "9:05:03", to the end of the text.
bool readTime(std::string_view text, DateTime& into) {
  const auto hour = takeNumber(text, 1, 2);
  if (!hour || !take(text, ':')) return false;
  const auto minute = takeNumber(text, 1, 2);
  const auto second = take(text, ':') ? takeNumber(text, 1, 2) : std::optional<int>(0);
  if (!minute || !second || !text.empty()) return false;
  into.hour = *hour;
  into.minute = *minute;
  into.second = *second;
  return isTime(into);
}

}  // namespace

DateTime localTime() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  ensure(localtime_r(&now, &local) != nullptr, "a local time of now");
  const Date date{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
  return {date, local.tm_hour, local.tm_min, std::min(local.tm_sec, 59)};  // no leap second
}

Date plusDays(Date date, int days) {
  const std::int64_t wanted = dayNumber(date) + days;
  const std::int64_t within = std::clamp(wanted, dayNumber(kFirstDate), dayNumber(kLastDate));
  const std::chrono::sys_days day{std::chrono::days(within)};
  const std::chrono::year_month_day result(day);
  return {static_cast<int>(result.year()), static_cast<int>(static_cast<unsigned>(result.month())),
          static_cast<int>(static_cast<unsigned>(result.day()))};
}

int daysBetween(const Date& from, const Date& to) {
  return static_cast<int>(dayNumber(to) - dayNumber(from));
}

std::int64_t secondsBetween(const DateTime& from, const DateTime& to) {
  const std::int64_t hours =
      std::int64_t{24} * daysBetween(from.date, to.date) + to.hour - from.hour;
  return (hours * 60 + to.minute - from.minute) * 60 + to.second - from.second;
}

std::string generalText(const DateTime& value) {
  const bool midnight = value.hour == 0 && value.minute == 0 && value.second == 0;
  return midnight ? dateText(value.date) : storedText(value);
}

std::string dateText(const Date& value) {
  return joined(std::array{value.year, value.month, value.day}, 4, '-');
}

std::string shortTime(const DateTime& value) {
  return joined(std::array{value.hour, value.minute}, 2, ':');
}

std::string longTime(const DateTime& value) {
  return joined(std::array{value.hour, value.minute, value.second}, 2, ':');
}

std::string storedText(const DateTime& value) {
  return dateText(value.date) + ' ' + longTime(value);
}

std::optional<DateTime> parseDateTime(std::string_view text) {
  const std::string folded = trimmed(halfWidth(text));
  std::string_view rest = folded;
  const std::optional<Date> date = takeDate(rest);
  if (!date) return std::nullopt;
  DateTime result{*date};
  if (rest.empty()) return result;
  if (!take(rest, ' ') || !readTime(rest, result)) return std::nullopt;
  return result;
}

std::optional<Date> parseTypedDate(std::string_view text, int year) {
  constexpr int kFourDigits = 1000;
  std::string folded = trimmed(halfWidth(text));
  const bool isUndivided = isDigits(folded);
  if (isUndivided && folded.size() == 8) folded.insert(6, "-").insert(4, "-");
  if (isUndivided && folded.size() == 4) folded.insert(2, "-");
  std::optional<std::vector<int>> parts = typedParts(folded, "-/.");
  if (!parts) return std::nullopt;
  if (parts->size() == 2) parts->insert(parts->begin(), year);
  if (parts->size() != 3 || parts->front() < kFourDigits) return std::nullopt;
  const Date date{parts->at(0), parts->at(1), parts->at(2)};
  return isDate(date) ? std::optional(date) : std::nullopt;
}

std::optional<DateTime> parseTypedTime(std::string_view text, const Date& date) {
  std::string folded = trimmed(halfWidth(text));
  if (isDigits(folded)) {
    for (std::size_t at = folded.size(); at > 2;) folded.insert(at -= 2, ":");
  }
  std::optional<std::vector<int>> parts = typedParts(folded, ":.");
  if (!parts || parts->size() > 3) return std::nullopt;
  parts->resize(3, 0);
  const DateTime time{date, parts->at(0), parts->at(1), parts->at(2)};
  return isTime(time) ? std::optional(time) : std::nullopt;
}

std::string accessLiteral(const DateTime& value) {
  return '#' + generalText(value) + '#';
}

std::optional<DateTime> parseAccessLiteral(std::string_view text) {
  if (text.size() < 2 || text.front() != '#' || text.back() != '#') return std::nullopt;
  return parseDateTime(text.substr(1, text.size() - 2));
}
