#pragma once

#include <string>

#include "platform/PageDocument.h"

class ClsSysParam;

/// The texts of the dialog's fields that the slip repeats.
struct SlipTexts {
  std::string cardNumber, balanceBefore, paid, credited, balanceAfter;
};
/// The slip, on the page printer only.
PageDocument topUpSlip(const ClsSysParam& shop, const SlipTexts& texts);
