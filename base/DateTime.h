#pragma once

#include <compare>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// A calendar date, year 1 to 9999.
struct Date {
  int year = 1;
  int month = 1;
  int day = 1;
  constexpr auto operator<=>(const Date&) const = default;  // NOLINT(modernize-use-nullptr)
};

/// Local wall-clock time to the second, as the shop's paper shows it.
struct DateTime {
  Date date;
  int hour = 0;
  int minute = 0;
  int second = 0;
  constexpr auto operator<=>(const DateTime&) const = default;  // NOLINT(modernize-use-nullptr)
};

/// Where the present time comes from; given in, so that a test can set it.
using Clock = std::function<DateTime()>;
/// The machine's local time.
DateTime localTime();

/// The date `days` later (earlier when negative), stopping at the ends of the calendar above.
Date plusDays(Date date, int days);
/// The days from one date to another, negative when that is earlier.
int daysBetween(const Date& from, const Date& to);
/// The seconds from one time to another, negative when that is earlier.
std::int64_t secondsBetween(const DateTime& from, const DateTime& to);

/// For people: "2026-11-22 09:05:03", the time left out at 00:00:00.
std::string generalText(const DateTime& value);
/// "2026-11-22"
std::string dateText(const Date& value);
/// Short time: "09:05".
std::string shortTime(const DateTime& value);
/// "09:05:03"
std::string longTime(const DateTime& value);
/// As the data file holds it: always with the time and zero-padded, so that order as text is order
/// in time.
std::string storedText(const DateTime& value);

/// Reads the forms above that begin with a date, the seconds or the whole time left out if they
/// like: four digits of the year, one or two of each other part, "-" or "/" in the date; blanks
/// around and full-width characters are allowed. Nothing for any other text or a date that does not
/// exist.
std::optional<DateTime> parseDateTime(std::string_view text);

/// Reads a date as people type it: year, month and day divided by "-", "/" or ".", or as eight
/// digits; without the year ("11-22", "1122") it is one of `year`. Blanks around and full-width
/// characters are allowed. Nothing for any other text or a date that does not exist.
std::optional<Date> parseTypedDate(std::string_view text, int year);
/// Reads a time as people type it, the same way: hour, minute and second divided by ":" or "." (the
/// numeric pad has no colon), or as two digits each; seconds and minutes may be left out. The time
/// is one of `date`.
std::optional<DateTime> parseTypedTime(std::string_view text, const Date& date);

/// Access date literal: "#2026-11-22 09:05:03#", or "#2026-11-22#" at 00:00:00.
std::string accessLiteral(const DateTime& value);
/// Reads what accessLiteral writes, the "#" signs included.
std::optional<DateTime> parseAccessLiteral(std::string_view text);
