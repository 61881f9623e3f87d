#pragma once

#include <cstdint>

#include "platform/PagePrinter.h"

class posMod;
class ClsSell;
struct ReceiptColumns;

/// The receipt of a settled bill with its original-price figure, for the page printer.
PageDocument pageReceipt(posMod& pos, const ClsSell& bill, const ReceiptColumns& widths,
                         std::int64_t originalPrice);
