#include "takings/Sums.h"

#include "base/NumberText.h"

void Earned::add(const Earned& more) {
  money += more.money;
  cost += more.cost;
  costless += more.costless;
}

void BillSums::add(const BillSums& more) {
  bills += more.bills;
  quantity = roundedQuantity(quantity + more.quantity);
  earned.add(more.earned);
  due += more.due;
  favorable += more.favorable;
  discountedLines += more.discountedLines;
  lineDiscount += more.lineDiscount;
  returns += more.returns;
  refunded += more.refunded;
}

void GoodsSums::add(const GoodsSums& more) {
  lines += more.lines;
  quantity = roundedQuantity(quantity + more.quantity);
  earned.add(more.earned);
  lineDiscount += more.lineDiscount;
  if (code.empty()) {
    code = more.code;
    name = more.name;
  }
  moved = moved || more.moved;
}
