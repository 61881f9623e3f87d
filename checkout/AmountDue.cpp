#include "checkout/AmountDue.h"

#include "base/NumberText.h"
#include "saleslib/ClsSysParam.h"

namespace {

std::string roundedToJiao(Currency& amount) {
  if (twoDecimals(amount).back() >= '5') amount += Currency::fromScaled(Currency::kScale / 10);
  std::string text = twoDecimals(amount);
  text.back() = '0';
  return text;
}

}  // namespace

std::string myCStr(Currency& amount, const ClsSysParam& rules) {
  std::string text = rules.RoundJiao() ? roundedToJiao(amount) : twoDecimals(amount);
  if (rules.RoundYuan()) text = std::to_string(wholeHalfEven(amount));
  return text;
}
