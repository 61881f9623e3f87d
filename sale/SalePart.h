#pragma once

#include <functional>
#include <optional>

#include "saleslib/Permission.h"

class BillBooks;
class Sale;
class SaleDevices;
class SaleScreen;

/// What the parts of the sale screen's work have in common: the sale, its books, the screen and the
/// devices. These outlive the part.
class SalePart {
 public:
  SalePart(Sale& sale, BillBooks& books, SaleScreen& screen, SaleDevices& devices)
      : sale_(sale), books_(books), screen_(screen), devices_(devices) {}

 protected:
  /// Does that work. A Failure is shown, and the sale goes on; false then, and when the work says
  /// so.
  bool guarded(const std::function<bool()>& work) const;
  /// Leave for that from the screen's Messages; what needs no right may always be done.
  Permit leave(const std::optional<Deed>& deed) const;

  Sale& sale_;
  BillBooks& books_;
  SaleScreen& screen_;
  SaleDevices& devices_;
};
