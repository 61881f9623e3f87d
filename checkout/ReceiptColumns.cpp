#include "checkout/ReceiptColumns.h"

ReceiptColumns ReceiptColumns::forModel(int paperModel) {
  if (paperModel == 1) return {40, 26, 6, 8};
  return {32, 22, 4, 6};
}
