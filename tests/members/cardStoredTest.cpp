#include "members/cardStored.h"

#include "MembersTill.h"

namespace {

using testing::ElementsAre;

class cardStoredTest : public MembersTill {
 protected:
  std::string books() {
    return stored("count(*)||' '||(select card from member) as v from cardStored");
  }
  /// Card, paid and credited typed with Enter behind each.
  void typeAll(const char* card, const char* paid, const char* credited) {
    for (const char* text : {card, paid, credited}) {
      hands.type("cardStored", text).press("cardStored", {Qt::Key_Return});
    }
  }
  /// From the credited amount over the remark to OK, which says something.
  void confirm() {
    hands.press("cardStored", {Qt::Key_Tab, Qt::Key_Enter, Qt::Key_Enter});
    hands.confirm(messages);
  }
  static void confirmNow(QWidget& shown) {
    QTest::keyClick(shown.findChild<QWidget*>("cmdOk2"), Qt::Key_Return);
  }

  cardStored dialog{till.pos};
};

TEST_F(cardStoredTest, ATopUpIsRecordedForTheCardAndTheBalanceThatWereShown) {
  typeAll(";v88001234?", "90", "100");
  hands.at("cardStored", [&](QWidget& shown) {
    EXPECT_EQ(text(shown, "txtBh") + text(shown, "txtName"), "88001234王芳");
    EXPECT_EQ(text(shown, "afterMoney"), "150");
    field(shown, "txtbz")->setText(" 送10元'优惠 ");
    field(shown, "addMoney")->setText("200");
    field(shown, "txtBh")->setText("99");
  });
  confirm();
  hands.at("cardStored", [&](QWidget& shown) {
    EXPECT_EQ(focusName(shown) + books(), "txtBh0 50");
    field(shown, "txtBh")->setText("88001234 ");
    confirmNow(shown);
  });
  hands.confirm(messages);
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  EXPECT_EQ(messages.back(), "充值成功！本次充值200,充值后卡内余额150  ");
  EXPECT_EQ(stored("cardbh||'|'||addmoney||'|'||inMoney||'|'||commerce||'|'||bz as v"
                   " from cardStored"),
            "88001234|200|90|150|送10元'优惠");
  EXPECT_EQ(books(), "1 150");
}

TEST_F(cardStoredTest, FiguresThatAreNoneWriteNothing) {
  const struct {
    const char *card, *paid, *credited, *message, *focus;
  } cases[] = {
      {";vip?", "90", "100", "会员卡号不能为空,请输入卡号", "txtBh"},
      {"88001234", "0", "100", "请输入正数", "inMoney"},
      {"88001234", "-90", "100", "请输入正数", "inMoney"},
      {"88001234", "90", "1e2", "请输入正数", "addMoney"},
      {"88001234", "90", "-100", "请输入正数", "addMoney"},
      {"88001234", "90", "922337203685477", "请输入正数", "addMoney"},
      {"' or ''='", "90", "100", "请输入正数", "beforeMoney"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.card) + " " + c.paid + " " + c.credited);
    hands.at("cardStored", [&](QWidget& shown) {
      field(shown, "txtBh")->setText(c.card);
      Hands::pressNow(Qt::Key_Return);
      field(shown, "inMoney")->setText(c.paid);
      field(shown, "addMoney")->setText(c.credited);
      confirmNow(shown);
    });
    hands.confirm(messages);
    hands.at("cardStored", [&](QWidget& shown) {
      EXPECT_EQ(focusName(shown), c.focus);
      Hands::pressNow(Qt::Key_Escape);
    });
    EXPECT_EQ(cardStored(till.pos).exec(), QDialog::Rejected);
    EXPECT_EQ(messages.back(), c.message);
    EXPECT_EQ(books(), "0 50");
  }
}

TEST_F(cardStoredTest, ABlockedCardAndADataFileThatFailsAreSaidAndTheDialogStays) {
  till.pos.gConn->runScript(
      "update member set enabled = 0;"
      "create trigger broken before insert on cardStored begin select raise(abort, 'disk'); end");
  hands.type("cardStored", "88001234").press("cardStored", {Qt::Key_Return});
  hands.confirm(messages);
  hands.at("cardStored", [&](QWidget& shown) {
    EXPECT_EQ(text(shown, "beforeMoney") + focusName(shown), "txtBh");
    till.pos.gConn->runScript("update member set enabled = 1");
  });
  typeAll("88001234", "90", "100");
  confirm();
  hands.at("cardStored", [&](QWidget& shown) {
    EXPECT_EQ(books(), "0 50");
    till.pos.gConn->runScript("drop trigger broken");
    confirmNow(shown);
  });
  hands.confirm(messages);
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  EXPECT_EQ(books(), "1 150");
  ASSERT_EQ(messages.size(), 3U);
  EXPECT_EQ(messages[0], "会员卡被禁用！卡号：88001234，持卡人：王芳");
  EXPECT_THAT(messages[1], testing::StartsWith("充值没有完成，卡内余额没有改变："));
}

TEST_F(cardStoredTest, AmountsWaitForACardAndAHeldEnterIsOnePress) {
  hands.press("cardStored", {Qt::Key_Tab, Qt::Key_5});
  hands.confirm(messages);
  hands.at("cardStored", [&](QWidget& shown) {
    EXPECT_EQ(text(shown, "inMoney") + focusName(shown), "txtBh");
    field(shown, "txtBh")->setText("88001234");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
    QApplication::sendEvent(field(shown, "txtBh"), &held);
    EXPECT_EQ(text(shown, "beforeMoney"), "");
    Hands::pressNow(Qt::Key_Escape);
  });
  EXPECT_EQ(dialog.exec(), QDialog::Rejected);
  EXPECT_THAT(messages, ElementsAre("会员卡号不能为空,请输入卡号"));
}

TEST_F(cardStoredTest, OnlyThePagePrinterGetsASlipAndABrokenOneCostsNothingElse) {
  const std::filesystem::path pdf = till.folder.path() / "pdf";
  std::ofstream(till.folder.file("Config.ini")) << "[Ports]\nUSB=" << pdf.string() << "\n";
  const auto topUp = [&](const char* port, bool isBroken = false) {
    till.pos.gPosSet.PPort = port;
    typeAll("88001234", "10", "10");
    confirm();
    if (isBroken) hands.confirm(messages);
    EXPECT_EQ(cardStored(till.pos).exec(), QDialog::Accepted);
  };
  std::filesystem::create_directory(pdf);
  topUp("LPT1");
  EXPECT_TRUE(std::filesystem::is_empty(pdf));
  topUp("USB");
  EXPECT_EQ(std::filesystem::remove_all(pdf), 2U) << "the folder and one slip";
  topUp("USB", true);
  EXPECT_EQ(messages.size(), 4U);
  EXPECT_EQ(books(), "3 80");
}

}  // namespace
