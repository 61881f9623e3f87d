#pragma once

#include <string>

#include "platform/PagePrinter.h"

class ClsSysParam;

/// The texts of the dialog's fields that the slip repeats.
struct SlipTexts {
  std::string cardNumber, balanceBefore, paid, credited, balanceAfter;
};
PageDocument topUpSlip(const ClsSysParam& shop, const SlipTexts& texts);
