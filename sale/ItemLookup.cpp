#include "sale/ItemLookup.h"

#include "base/Failure.h"
#include "base/NumberText.h"
#include "checkout/FigureCheck.h"
#include "platform/QtText.h"
#include "sale/Sale.h"
#include "sale/SaleScreen.h"
#include "sale/SaleTexts.h"

ItemLookup::ItemLookup(const Sale& sale, const BillBooks& books, SaleScreen& screen)
    : sale_(sale), books_(books), goods_(books.goods()), screen_(screen) {}

ItemLookup::Line ItemLookup::LookupBarcode(const QString& code) {
  return lookUp([&] { return goods_.byBarcode(code.toStdString()); });
}

ItemLookup::Line ItemLookup::LookupSpec(const QString& code) {
  return lookUp([&] { return goods_.bySpecification(code.toStdString()); });
}

ItemLookup::Line ItemLookup::LookupItemNo(const QString& code) {
  return lookUp([&] { return goods_.byItemNumber(code.toStdString()); });
}

// The price is asked for last, because the question waits for the cashier: by then every field has
// been read.
ItemLookup::Line ItemLookup::lookUp(const std::function<FoundGoods()>& find) {
  givenUp_ = false;
  try {
    const FoundGoods found = find();
    if (found.count() == 0) return nullptr;
    const int chosen = found.count() == 1 ? 0 : choose(found);
    if (chosen < 0) return nullptr;
    const auto [line, priceMissing] =
        found.line(static_cast<std::size_t>(chosen), *sale_.bill(), sale_.member());
    if (!priceMissing) return line;
    const std::optional<Currency> price = askPrice();
    givenUp_ = !price;
    if (givenUp_) return nullptr;
    line->typePrice(*price);
    return line;
  } catch (const Failure& failure) {
    screen_.messageBox(qtText(failure.what()));
    return nullptr;
  }
}

int ItemLookup::choose(const FoundGoods& found) {
  screen_.show(sale_.picture());
  return screen_.choose(static_cast<int>(found.count()), [&found](int position) {
    const FoundGoods::Caption each = found.caption(static_cast<std::size_t>(position));
    QString caption = each.itemNumber
                          ? tr("%1  货号: %2").arg(qtText(each.name), qtText(*each.itemNumber))
                          : qtText(each.name + "  " + each.origin);
    if (each.stock) caption += tr("  库存：%1").arg(qtText(generalNumber(*each.stock)));
    return caption;
  });
}

// A negative price would pay the customer for taking the goods, so it counts as no answer.
std::optional<Currency> ItemLookup::askPrice() {
  screen_.show(sale_.picture());
  priceLeave_ = screen_.leave({Right::kPrice});
  if (!priceLeave_) return std::nullopt;
  while (true) {
    const QString typed = screen_.prompt({}, {});
    const auto price = Currency::parse(typed.toStdString());
    if (!price || *price < Currency()) continue;
    if (FigureCheck(books_.rules(), screen_).price(typed, *price)) return *price;
  }
}
