#include "members/TopUpSlip.h"

#include "saleslib/ClsSysParam.h"

// Papers are Chinese whatever the screens speak.
PageDocument topUpSlip(const ClsSysParam& shop, const SlipTexts& texts) {
  PageDocument slip;
  slip.name = "充值单";
  slip.addLines(
      0, {" " + shop.ShopName() + "充值单  ", " 卡号: " + texts.cardNumber + "   ",
          " 充值前卡内余额: " + texts.balanceBefore + " ", " 付款金额: " + texts.paid + " ",
          " 充值金额: " + texts.credited + " ", " 充值后卡内余额: " + texts.balanceAfter + " ",
          std::string(), std::string(40, '_'), shop.ReceiptText1(), shop.ReceiptText2(),
          shop.ReceiptText3()});
  return slip;
}
