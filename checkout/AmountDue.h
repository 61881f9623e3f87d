#pragma once

#include <string>

#include "base/Currency.h"

class ClsSysParam;

/// The amount due as text, after the shop's rounding rule. RoundJiao: when the second decimal is 5
/// or more, 0.1 is added to `amount` itself; the text's last digit is then 0. RoundYuan: the text
/// is in whole yuan, halves to even. With both, RoundYuan decides the text.
std::string myCStr(Currency& amount, const ClsSysParam& rules);
