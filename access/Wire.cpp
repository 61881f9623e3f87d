#include "access/Wire.h"

#include <cstring>

#include "base/Failure.h"
#include "base/Words.h"

namespace {

// The place of a date and time among the numbers: yyyymmddhhmmss.
std::int64_t packed(const DateTime& time) {
  const Date& date = time.date;
  const std::int64_t day = (std::int64_t{date.year} * 100 + date.month) * 100 + date.day;
  return ((day * 100 + time.hour) * 100 + time.minute) * 100 + time.second;
}

int lowestPair(std::int64_t& number) {
  const auto pair = static_cast<int>(number % 100);
  number /= 100;
  return pair;
}

DateTime unpacked(std::int64_t number) {
  DateTime time;
  time.second = lowestPair(number);
  time.minute = lowestPair(number);
  time.hour = lowestPair(number);
  time.date.day = lowestPair(number);
  time.date.month = lowestPair(number);
  time.date.year = static_cast<int>(number);
  return time;
}

}  // namespace

void WireWriter::number(std::int64_t number) {
  char bytes[sizeof number];
  std::memcpy(bytes, &number, sizeof number);
  bytes_.append(bytes, sizeof number);
}

void WireWriter::text(std::string_view text) {
  number(static_cast<std::int64_t>(text.size()));
  bytes_.append(text);
}

void WireWriter::value(const AccessValue& value) {
  bytes_ += static_cast<char>(value.index());
  if (const auto* flag = std::get_if<bool>(&value)) number(*flag ? 1 : 0);
  if (const auto* whole = std::get_if<std::int64_t>(&value)) number(*whole);
  if (const auto* real = std::get_if<double>(&value)) {
    bytes_.append(reinterpret_cast<const char*>(real), sizeof *real);
  }
  if (const auto* money = std::get_if<Currency>(&value)) number(money->scaled());
  if (const auto* time = std::get_if<DateTime>(&value)) number(packed(*time));
  if (const auto* characters = std::get_if<std::string>(&value)) text(*characters);
}

void WireWriter::table(const AccessTable& table) {
  text(table.name);
  number(table.isLinked ? 1 : 0);
  number(table.rows);
  for (const AccessColumn& column : table.columns) {
    text(column.name);
    text(column.type);
    number(column.isReadable ? 1 : 0);
  }
}

std::string_view WireReader::take(std::size_t count) {
  if (count > rest_.size()) throw Failure(Words::tr("Access 文件已损坏，读不下去了。"));
  const std::string_view taken = rest_.substr(0, count);
  rest_.remove_prefix(count);
  return taken;
}

std::int64_t WireReader::number() {
  std::int64_t number = 0;
  std::memcpy(&number, take(sizeof number).data(), sizeof number);
  return number;
}

double WireReader::real() {
  double real = 0;
  std::memcpy(&real, take(sizeof real).data(), sizeof real);
  return real;
}

std::string WireReader::text() {
  return std::string(take(static_cast<std::size_t>(number())));
}

AccessValue WireReader::value() {
  switch (take(1).front()) {
    case 0:
      return std::monostate{};
    case 1:
      return number() != 0;
    case 2:
      return number();
    case 3:
      return real();
    case 4:
      return Currency::fromScaled(number());
    case 5:
      return unpacked(number());
    default:
      return text();
  }
}

AccessTable WireReader::table() {
  AccessTable table;
  table.name = text();
  table.isLinked = number() != 0;
  table.rows = number();
  while (!atEnd()) {
    AccessColumn& column = table.columns.emplace_back();
    column.name = text();
    column.type = text();
    column.isReadable = number() != 0;
  }
  return table;
}
