#include "saleslib/GoodsLookup.h"

#include <limits>
#include <utility>

#include "base/Failure.h"
#include "base/Words.h"
#include "saleslib/ClsMember.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsStock.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/Pricing.h"
#include "store/Connection.h"
#include "store/Literal.h"

namespace {

// An empty ratio counts one stock unit per unit of sale.
std::int16_t ratioOf(const Row& row) {
  const std::int64_t ratio = row.whole("dwbl").value_or(1);
  if (ratio < std::numeric_limits<std::int16_t>::min() ||
      ratio > std::numeric_limits<std::int16_t>::max()) {
    throw Overflow(Words::tr("商品“%1”的单位比率太大：%2", row.text("spmc"), ratio));
  }
  return static_cast<std::int16_t>(ratio);
}

void fillFromBarcodeRow(ClsSellItem& line, const Row& row, const std::string& code) {
  line.setUnit(row.text("jldw"));
  line.setSpCode(row.text("spbm"));
  line.setRatio(ratioOf(row));
  line.setCost(row.currency("zhjj").value_or(Currency()));
  line.setOrigin(row.text("spcd"));
  line.setCategory(row.text("splbmc"));
  line.setEntryCode(code);
}

void fillFromItemRow(ClsSellItem& line, const Row& row) {
  line.setUnit(row.text("f_jldw"));
  line.setSpCode(row.text("f_spbm"));
  line.setRatio(1);
  line.setCost(row.currency("f_zhjj").value_or(Currency()));
  line.setOrigin(row.text("f_spcd"));
  line.setCategory(row.text("f_splbmc"));
  line.setEntryCode(row.text("f_sphh"));
}

}  // namespace

FoundGoods::FoundGoods(const GoodsLookup& lookup, Recordset rows, std::string code)
    : lookup_(lookup),
      rows_(std::make_shared<const Recordset>(std::move(rows))),
      code_(std::move(code)) {}

std::size_t FoundGoods::count() const {
  return rows_->count();
}

FoundGoods::Caption FoundGoods::caption(std::size_t index) const {
  const Row& row = rows_->row(index);
  const bool barcode = !code_.empty();
  Caption caption;
  caption.name = row.text(barcode ? "spmc" : "f_spmc");
  if (barcode) {
    caption.origin = row.text("spcd");
  } else {
    caption.itemNumber = row.text("f_sphh");
  }
  ClsStock stock;
  stock.Init(lookup_.connection_, row.text(barcode ? "spbm" : "f_spbm"));
  try {
    caption.stock = stock.StockQty();
  } catch (const Failure&) {
    // the goods can be chosen all the same
  }
  return caption;
}

FoundGoods::Line FoundGoods::line(std::size_t index, const ClsSell& bill,
                                  const ClsMember* member) const {
  const Row& row = rows_->row(index);
  const Clock& clock = lookup_.clock_;
  const double rate = lookup_.rules_.GeneralRate();
  const Price price = code_.empty() ? priceOfMasterRow(row, member, rate)
                                    : priceOfBarcodeRow(row, member, clock().date, rate);
  Line found{std::make_shared<ClsSellItem>(), price.missing};
  ClsSellItem& line = *found.line;
  line.Init(lookup_.connection_, bill.BillNo(), 0, clock);
  code_.empty() ? fillFromItemRow(line, row) : fillFromBarcodeRow(line, row, code_);
  line.setSpName(price.name);
  line.setDiscount(price.discount);
  line.setPrice(price.price);
  return found;
}

GoodsLookup::GoodsLookup(Connection& connection, const ClsSysParam& rules, Clock clock)
    : connection_(connection), rules_(rules), clock_(std::move(clock)) {}

FoundGoods GoodsLookup::byBarcode(const std::string& code) const {
  return {*this, connection_.Open("select * from tmda where sptm =" + quotedText(code) + " "),
          code};
}

FoundGoods GoodsLookup::bySpecification(const std::string& fragment) const {
  return {*this,
          connection_.Open("select * from tmda  where ggxh like" + likeFragment(fragment) + " "),
          fragment};
}

FoundGoods GoodsLookup::byItemNumber(const std::string& fragment) const {
  return {*this,
          connection_.Open("select * from spda where f_sphh like" + likeFragment(fragment) + " "),
          {}};
}

std::vector<std::string> goodsCategories(Connection& connection) {
  const Recordset rows = connection.Open("select  SPLBMC from SP_LB order by SPLB_ID");
  std::vector<std::string> names;
  for (std::size_t row = 0; row < rows.count(); ++row)
    names.push_back(rows.row(row).text("SPLBMC"));
  return names;
}
