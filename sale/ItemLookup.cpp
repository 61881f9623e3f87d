#include "sale/ItemLookup.h"

#include <limits>

#include "app/posMod.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "checkout/FigureCheck.h"
#include "checkout/SaleScreen.h"
#include "checkout/SaleState.h"
#include "sale/Pricing.h"
#include "store/Connection.h"
#include "store/Literal.h"

namespace {

// An empty ratio counts one stock unit per unit of sale.
std::int16_t ratioOf(const Row& row) {
  const std::int64_t ratio = row.whole("dwbl").value_or(1);
  if (ratio < std::numeric_limits<std::int16_t>::min() ||
      ratio > std::numeric_limits<std::int16_t>::max()) {
    throw Overflow("商品“" + row.text("spmc") + "”的单位比率太大：" + std::to_string(ratio));
  }
  return static_cast<std::int16_t>(ratio);
}

}  // namespace

ItemLookup::ItemLookup(posMod& pos, SaleState& state, SaleScreen& screen)
    : pos_(pos), state_(state), screen_(screen) {}

bool ItemLookup::LookupBarcode(const QString& code) {
  const std::string typed = code.toStdString();
  return lookUpBarcodeTable("select * from tmda where sptm =" + quotedText(typed) + " ", typed);
}

bool ItemLookup::LookupSpec(const QString& code) {
  const std::string typed = code.toStdString();
  return lookUpBarcodeTable("select * from tmda  where ggxh like" + likeFragment(typed) + " ",
                            typed);
}

bool ItemLookup::LookupItemNo(const QString& code) {
  const auto caption = [this](const Row& row) {
    return QString::fromStdString(row.text("f_spmc")) + tr("  货号: ") +
           QString::fromStdString(row.text("f_sphh")) + stockText(row.text("f_spbm"));
  };
  return lookUp("select * from spda where f_sphh like" + likeFragment(code.toStdString()) + " ",
                caption,
                [this](ClsSellItem& line, const Row& row) { fillFromMasterRow(line, row); });
}

bool ItemLookup::lookUpBarcodeTable(const std::string& statement, const std::string& code) {
  const auto caption = [this](const Row& row) {
    return QString::fromStdString(row.text("spmc") + "  " + row.text("spcd")) +
           stockText(row.text("spbm"));
  };
  return lookUp(statement, caption, [this, &code](ClsSellItem& line, const Row& row) {
    fillFromBarcodeRow(line, row, code);
  });
}

bool ItemLookup::lookUp(const std::string& statement, const Caption& caption, const Filler& fill) {
  try {
    const Recordset found = pos_.gConn->Open(statement);
    if (found.count() == 0) return false;
    const int chosen = found.count() == 1 ? 0 : choose(found, caption);
    if (chosen < 0) return false;
    auto line = std::make_shared<ClsSellItem>();
    line->Init(*pos_.gConn, state_.curBill->BillNo(), 0, pos_.clock);
    fill(*line, found.row(static_cast<std::size_t>(chosen)));
    state_.curLine = std::move(line);
    return true;
  } catch (const Failure& failure) {
    screen_.messageBox(QString::fromStdString(failure.what()));
    return false;
  }
}

int ItemLookup::choose(const Recordset& found, const Caption& caption) {
  return screen_.choose(static_cast<int>(found.count()), [&](int position) {
    return caption(found.row(static_cast<std::size_t>(position)));
  });
}

void ItemLookup::fillFromBarcodeRow(ClsSellItem& line, const Row& row, const std::string& code) {
  const Price price = priceOfBarcodeRow(row, state_.curMember.get(), pos_.clock().date,
                                        pos_.gSysParam.GeneralRate());
  line.setUnit(row.text("jldw"));
  line.setSpCode(row.text("spbm"));
  line.setRatio(ratioOf(row));
  line.setCost(row.currency("zhjj").value_or(Currency()));
  line.setOrigin(row.text("spcd"));
  line.setCategory(row.text("splbmc"));
  line.setEntryCode(code);
  setPrice(line, price);
}

void ItemLookup::fillFromMasterRow(ClsSellItem& line, const Row& row) {
  const Price price = priceOfMasterRow(row, state_.curMember.get(), pos_.gSysParam.GeneralRate());
  line.setUnit(row.text("f_jldw"));
  line.setSpCode(row.text("f_spbm"));
  line.setRatio(1);
  line.setCost(row.currency("f_zhjj").value_or(Currency()));
  line.setOrigin(row.text("f_spcd"));
  line.setCategory(row.text("f_splbmc"));
  line.setEntryCode(row.text("f_sphh"));
  setPrice(line, price);
}

// Last, because the question waits for the cashier: by then every field has been read.
void ItemLookup::setPrice(ClsSellItem& line, const Price& price) {
  line.setSpName(price.name);
  line.setDiscount(price.discount);
  line.setPrice(price.missing ? askPrice() : price.price);
}

// A negative price would pay the customer for taking the goods, so it counts as no answer.
Currency ItemLookup::askPrice() {
  while (true) {
    const QString typed = screen_.prompt({}, {});
    const auto price = Currency::parse(typed.toStdString());
    if (!price || *price < Currency()) continue;
    if (FigureCheck(pos_.gSysParam, screen_).price(typed, *price)) return *price;
  }
}

// Without a stock that cannot be read now, the goods can be chosen all the same.
QString ItemLookup::stockText(const std::string& itemCode) {
  try {
    stock_.Init(*pos_.gConn, itemCode);
    return tr("  库存：") + QString::fromStdString(generalNumber(stock_.StockQty()));
  } catch (const Failure&) {
    return {};
  }
}
