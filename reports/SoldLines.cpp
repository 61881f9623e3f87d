#include "reports/SoldLines.h"

#include <QCoreApplication>
#include <array>
#include <utility>

#include "base/Failure.h"
#include "platform/QtText.h"
#include "store/Row.h"

namespace {

constexpr std::array kGoodsTexts = {&SoldGoods::code, &SoldGoods::name, &SoldGoods::unit,
                                    &SoldGoods::barcode, &SoldGoods::category};

// Lists, papers and files take the texts as they are, so that broken bytes stop here.
std::string soundText(const std::string& text) {
  return qtText(text).toStdString();
}

std::optional<std::int32_t> billNumber(std::optional<std::int64_t> number) {
  if (!number) return std::nullopt;
  if (*number < INT32_MIN || *number > INT32_MAX) {
    throw Overflow(QCoreApplication::translate("SoldLines", "单号超出范围。").toStdString());
  }
  return static_cast<std::int32_t>(*number);
}

}  // namespace

// Columns are asked for in the order of the select, in which they are found at once.
void SoldLineCollector::take(const Row& row) {
  SoldLine line;
  SoldGoods goods;
  line.time = row.dateTime("insert_Date");
  line.billNo = billNumber(row.whole("sellId"));
  goods.code = row.text("bm");
  goods.name = row.text("name");
  goods.unit = row.text("unit");
  line.quantity = row.number("amount");
  line.price = row.currency("price");
  if (const auto factor = row.number("discount")) line.discount = static_cast<float>(*factor);
  line.money = row.currency("money");
  goods.category = row.text("splbmc");
  goods.barcode = row.text("f_sptm");
  line.goods = indexOf(std::move(goods));
  page_.lines.push_back(line);
}

// One look-up for all five texts: a year's lines are of few goods.
std::uint32_t SoldLineCollector::indexOf(SoldGoods goods) {
  texts_.clear();
  for (const auto part : kGoodsTexts) texts_.append(goods.*part).push_back('\0');
  const auto known = static_cast<std::uint32_t>(goodsByTexts_.size());
  const auto [place, isNew] = goodsByTexts_.try_emplace(texts_, known);
  if (isNew) {
    for (const auto part : kGoodsTexts) goods.*part = soundText(goods.*part);
    page_.goods.push_back(std::move(goods));
  }
  return place->second;
}

SoldPage SoldLineCollector::page() {
  return std::exchange(page_, {});
}
