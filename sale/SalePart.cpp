#include "sale/SalePart.h"

#include "base/Failure.h"
#include "platform/QtText.h"
#include "sale/SaleScreen.h"

Permit SalePart::leave(const std::optional<Deed>& deed) const {
  return deed ? screen_.leave(*deed) : std::make_shared<const Grant>();
}

bool SalePart::guarded(const std::function<bool()>& work) const {
  try {
    return work();
  } catch (const Failure& failure) {
    screen_.messageBox(qtText(failure.what()));
    return false;
  }
}
