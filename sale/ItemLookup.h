#pragma once

#include <QCoreApplication>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "saleslib/GoodsLookup.h"
#include "saleslib/Permission.h"

class BillBooks;
class Sale;
class SaleScreen;

/// Turns a typed or scanned code into a priced line of the open bill. Each look-up lets the cashier
/// choose when several goods match and asks for a missing price; no line when nothing was found or
/// chosen. A look-up that breaks shows why and finds nothing.
class ItemLookup {
  Q_DECLARE_TR_FUNCTIONS(ItemLookup)

 public:
  using Line = std::shared_ptr<ClsSellItem>;
  ItemLookup(const Sale& sale, const BillBooks& books, SaleScreen& screen);

  /// tmda by exact barcode.
  [[nodiscard]] Line LookupBarcode(const QString& code);
  /// tmda by a fragment of the specification.
  [[nodiscard]] Line LookupSpec(const QString& code);
  /// spda by a fragment of the item number.
  [[nodiscard]] Line LookupItemNo(const QString& code);
  /// The last look-up found goods whose price nobody may type.
  bool givenUp() const { return givenUp_; }
  /// Leave for the price that was typed in the last look-up, to be kept until the line is rung.
  Permit takePriceLeave() { return std::exchange(priceLeave_, {}); }

 private:
  Line lookUp(const std::function<FoundGoods()>& find);
  int choose(const FoundGoods& found);
  std::optional<Currency> askPrice();

  const Sale& sale_;
  const BillBooks& books_;
  GoodsLookup goods_;
  SaleScreen& screen_;
  bool givenUp_ = false;
  Permit priceLeave_;
};
