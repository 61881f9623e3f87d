#include "saleslib/Pricing.h"

#include "saleslib/ClsMember.h"
#include "store/Row.h"

namespace {

bool positive(const std::optional<Currency>& price) {
  return price && *price > Currency();
}

// An item's own discount, where 1 or an empty field means that it has none of its own.
Discount ownOrGeneral(const std::optional<double>& own, double generalRate) {
  const Discount discount(own.value_or(1.0));
  return discount.isNone() ? Discount(generalRate) : discount;
}

bool onPromotion(const Row& row, const Date& today) {
  const auto first = row.dateTime("kssj");
  const auto last = row.dateTime("jssj");
  const DateTime midnight{today};
  return first && last && *first <= midnight && midnight <= *last;
}

}  // namespace

Price priceOfBarcodeRow(const Row& row, const ClsMember* member, const Date& today,
                        double generalRate) {
  Price price;
  price.name = row.text("spmc");
  if (const auto memberPrice = row.currency("pfj"); member != nullptr && positive(memberPrice)) {
    price.price = *memberPrice;
    price.discount = Discount(member->Discount());
  } else if (onPromotion(row, today)) {
    price.price = row.currency("cxj").value_or(Currency());
    // untranslated: stored with the line and printed
    price.name = "(特)" + price.name;
  } else {
    price.price = row.currency("xsdj").value_or(Currency());
    price.discount = ownOrGeneral(row.number("zk"), generalRate);
  }
  price.missing = price.price <= Currency();
  return price;
}

Price priceOfMasterRow(const Row& row, const ClsMember* member, double generalRate) {
  Price price;
  price.name = row.text("f_spmc");
  const auto retail = row.currency("f_xsdj");
  if (!positive(retail)) {
    price.missing = true;
    return price;
  }
  if (const auto memberPrice = row.currency("f_pfj"); member != nullptr && positive(memberPrice)) {
    price.price = *memberPrice;
    price.discount = Discount(member->Discount());
  } else {
    price.price = *retail;
    price.discount = ownOrGeneral(row.number("f_zk"), generalRate);
  }
  return price;
}
