#pragma once

#include "platform/PagePrinter.h"

class posMod;
struct SaleState;

/// The receipt of the bill just settled (state.lastBill) for the page printer, laid out from the
/// rows that the screen still shows.
PageDocument pageReceipt(posMod& pos, const SaleState& state);
