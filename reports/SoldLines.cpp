#include "reports/SoldLines.h"

#include <QString>
#include <array>
#include <utility>

#include "base/Failure.h"
#include "store/Row.h"

namespace {

// Lists, papers and files take the texts as they are, so that broken bytes stop here.
std::string soundText(const std::string& text) {
  return QString::fromStdString(text).toStdString();
}

std::optional<std::int32_t> billNumber(std::optional<std::int64_t> number) {
  if (!number) return std::nullopt;
  if (*number < INT32_MIN || *number > INT32_MAX) throw Overflow("单号超出范围。");
  return static_cast<std::int32_t>(*number);
}

}  // namespace

void SoldLineCollector::take(const Row& row) {
  SoldLine line;
  line.time = row.dateTime("insert_Date");
  line.billNo = billNumber(row.whole("sellId"));
  line.goods = goodsOf(row);
  line.quantity = row.number("amount");
  line.price = row.currency("price");
  if (const auto factor = row.number("discount")) line.discount = static_cast<float>(*factor);
  line.money = row.currency("money");
  page_.lines.push_back(line);
}

// One look-up for all five texts: a year's lines are of few goods.
std::uint32_t SoldLineCollector::goodsOf(const Row& row) {
  std::array<std::string, 5> parts = {row.text("bm"), row.text("name"), row.text("unit"),
                                      row.text("f_sptm"), row.text("splbmc")};
  texts_.clear();
  for (const std::string& part : parts) texts_.append(part).push_back('\0');
  const auto known = static_cast<std::uint32_t>(goodsByTexts_.size());
  const auto [place, isNew] = goodsByTexts_.try_emplace(texts_, known);
  if (isNew) {
    for (std::string& part : parts) part = soundText(part);
    page_.goods.push_back({parts[0], parts[1], parts[2], parts[3], parts[4]});
  }
  return place->second;
}

SoldPage SoldLineCollector::page() {
  return std::exchange(page_, {});
}
