#include "members/TopUp.h"

#include "base/NumberText.h"
#include "saleslib/ClsSysParam.h"
#include "store/Connection.h"
#include "store/Literal.h"
#include "store/StoreError.h"

std::optional<StoredCard> findStoredCard(Connection& connection, const std::string& number) {
  Rows rows = connection.Read("select * from member where bh=" + quotedText(number));
  if (!rows.next()) return std::nullopt;
  return StoredCard{rows.text("name"), rows.text("hyzklb"),
                    rows.currency("card").value_or(Currency())};
}

void storeTopUp(Connection& connection, const TopUp& topUp) {
  const std::string credited = quotedText(generalNumber(topUp.credited));
  const std::string paid = quotedText(generalNumber(topUp.paid));
  const std::string balance = quotedText(generalNumber(topUp.balance));
  connection.Execute(
      "insert into cardStored([cardbh],[addmoney],[inMoney],[commerce],[bz]) values(" +
      quotedText(topUp.cardNumber) + "," + credited + " ," + paid + "  ," + balance + "  ," +
      quotedText(topUp.remark) + ")");
  const std::int64_t cards = connection.Execute(" update member set card=" + balance +
                                                " where bh= " + quotedText(topUp.cardNumber));
  if (cards == 0) {
    throw StoreError("会员卡 " + topUp.cardNumber + " 已不在数据文件中，余额没有保存！");
  }
}

PageDocument topUpSlip(const ClsSysParam& shop, const SlipTexts& texts) {
  PageDocument slip;
  slip.name = "充值单";
  int y = 0;
  for (const std::string& line :
       {" " + shop.ShopName() + "充值单  ", " 卡号: " + texts.cardNumber + "   ",
        " 充值前卡内余额: " + texts.balanceBefore + " ", " 付款金额: " + texts.paid + " ",
        " 充值金额: " + texts.credited + " ", " 充值后卡内余额: " + texts.balanceAfter + " ",
        std::string(), std::string(40, '_'), shop.ReceiptText1(), shop.ReceiptText2(),
        shop.ReceiptText3()}) {
    slip.texts.push_back({0, y, line});
    y += slip.lineHeight();
  }
  return slip;
}
