#include "members/cardStored.h"

#include "Hands.h"
#include "ShopFixture.h"

constexpr const char* kWindow = "cardStored";
constexpr const char* kFields = "txtBh txtName beforeMoney inMoney addMoney afterMoney";

class cardStoredTest : public ShopFixture {
 protected:
  std::string books() {
    return stored(
        "coalesce(group_concat(cardbh||' '||inMoney||' '||addmoney||' '||commerce||' '||bz), '-')"
        " ||' / '||(select card from member) as v from cardStored");
  }
  static void confirmNow(QWidget& shown) {
    QTest::keyClick(shown.findChild<QWidget*>("cmdOk2"), Qt::Key_Return);
  }
  static void set(QWidget& window, const char* name, const char* text) {
    window.findChild<QLineEdit*>(name)->setText(text);
  }

  Hands hands;
  cardStored dialog{pos};
};

TEST_F(cardStoredTest, ATopUpIsRecordedForTheCardAndTheBalanceThatWereShown) {
  hands.type(kWindow, ";v8001?\n90\n100\n")
      .see(kWindow, kFields, "8001|(王芳)|88.5|90|100|188.5@addMoney");
  hands.at(kWindow, [](QWidget& shown) {
    set(shown, "txtbz", " 送10元'优惠 ");
    set(shown, "addMoney", "200");
    set(shown, "txtBh", "99");
  });
  hands.type(kWindow, "\t\n\n")
      .says("messageBox", "卡号已改变，请在卡号处按回车重新查找会员！")
      .see(kWindow, kFields, "99|(王芳)|88.5|90|200|188.5@txtBh");
  hands.at(kWindow, [this](QWidget& shown) {
    EXPECT_EQ(books(), "- / 88.5");
    set(shown, "txtBh", "8001 ");
    confirmNow(shown);
  });
  hands.says("messageBox", "充值成功！本次充值200,充值后卡内余额188.5  ");
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  EXPECT_EQ(books(), "8001 90 200 188.5 送10元'优惠 / 188.5");
}

TEST_F(cardStoredTest, FiguresThatAreNoneWriteNothing) {
  const char* const cases[][5] = {{";vip?", "90", "100", "会员卡号不能为空,请输入卡号", "@txtBh"},
                                  {"8001", "0", "100", "请输入正数", "@inMoney"},
                                  {"8001", "-90", "100", "请输入正数", "@inMoney"},
                                  {"8001", "90", "1e2", "请输入正数", "@addMoney"},
                                  {"8001", "90", "-100", "请输入正数", "@addMoney"},
                                  {"8001", "90", "922337203685477", "请输入正数", "@addMoney"},
                                  {"' or ''='", "90", "100", "请输入正数", "@beforeMoney"}};
  for (const auto& [card, paid, credited, message, focus] : cases) {
    SCOPED_TRACE(std::string(card) + " " + paid + " " + credited);
    hands.at(kWindow, [&, card = card, paid = paid, credited = credited](QWidget& shown) {
      set(shown, "txtBh", card);
      Hands::pressNow(Qt::Key_Return);
      set(shown, "inMoney", paid);
      set(shown, "addMoney", credited);
      confirmNow(shown);
    });
    hands.says("messageBox", message).at(kWindow, [focus = focus](QWidget& shown) {
      EXPECT_TRUE(Hands::textsOf(shown, "txtBh").ends_with(focus));
      Hands::pressNow(Qt::Key_Escape);
    });
    EXPECT_EQ(cardStored(pos).exec(), QDialog::Rejected);
    EXPECT_EQ(books(), "- / 88.5");
  }
}

TEST_F(cardStoredTest, WhatABlockedCardAnEmptyOneAndAFailingDataFileSayAndTheDialogStays) {
  pos.gConn->runScript("update member set enabled = 0");
  breakStore("insert on cardStored");
  hands.type(kWindow, "\t5").says("messageBox", "会员卡号不能为空,请输入卡号");
  hands.at(kWindow, [](QWidget& shown) {
    set(shown, "txtBh", "8001");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
    QApplication::sendEvent(shown.focusWidget(), &held);
    EXPECT_EQ(Hands::textsOf(shown, kFields), "8001|||||@txtBh") << "a held Enter is one press";
    Hands::pressNow(Qt::Key_Return);
  });
  hands.says("messageBox", "会员卡被禁用！卡号：8001，持卡人：王芳")
      .see(kWindow, kFields, "8001|||||@txtBh");
  hands.at(kWindow, [this](QWidget&) { pos.gConn->runScript("update member set enabled = 1"); });
  hands.type(kWindow, "8001\n90\n100\n\t\n\n");
  hands.says("messageBox", "充值没有完成，卡内余额没有改变：数据与已有的记录冲突：disk");
  hands.at(kWindow, [this](QWidget& shown) {
    EXPECT_EQ(books(), "- / 88.5");
    mendStore();
    confirmNow(shown);
  });
  hands.says("messageBox", "充值成功！");
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  EXPECT_EQ(books(), "8001 90 100 188.5  / 188.5");
}

TEST_F(cardStoredTest, OnlyThePagePrinterGetsASlipAndABrokenOneCostsNothingElse) {
  setParameter("ShopName", "小店");
  for (const auto& [port, broken, slip] :
       {std::tuple("LPT1", false, ""),
        {"USB", false,
         "0 小店充值单  |1 卡号: 8001   |2 充值前卡内余额: 188.5 |3 付款金额: 90.00 |4 充值金额: "
         "100 |5 充值后卡内余额: 288.5 "
         "|6|7________________________________________|8欢迎光临|9谢谢惠顾|10电话 010-1234|"},
        {"USB", true, ""}}) {
    pos.gPosSet.PPort = port;
    ports.broken = broken;
    hands.type(kWindow, "8001\n90.00\n100\n\t\n\n").says("messageBox", "充值成功！");
    if (broken) hands.says("messageBox", "打印机没有响应");
    EXPECT_EQ(cardStored(pos).exec(), QDialog::Accepted);
    std::string printed;
    for (const PageDocument& page : std::exchange(ports.pages, {})) {
      for (const PlacedText& line : page.texts) {
        printed += std::to_string(line.y / page.lineHeight()) + line.text + "|";
      }
    }
    EXPECT_EQ(printed, slip);
  }
  EXPECT_EQ(stored("card as v from member"), "388.5");
}
