#include "members/cardStored.h"

#include "MembersTill.h"

namespace {

using testing::ElementsAre;

class cardStoredTest : public MembersTill {
 protected:
  using Step = std::function<void(QWidget&)>;

  std::string books() {
    return stored("count(*)||' '||(select card from member) as v from cardStored");
  }
  /// Card, paid and credited typed with Enter behind each.
  void typeAll(const char* card, const char* paid, const char* credited) {
    for (const char* text : {card, paid, credited}) {
      hands.type("cardStored", text).press("cardStored", {Qt::Key_Return});
    }
  }
  /// From the credited amount over the remark to OK.
  void confirm() { hands.press("cardStored", {Qt::Key_Tab, Qt::Key_Enter, Qt::Key_Enter}); }
  std::size_t slips() {
    const std::filesystem::directory_iterator pdfs(till.folder.path() / "pdf");
    return static_cast<std::size_t>(std::distance(begin(pdfs), end(pdfs)));
  }

  cardStored dialog{till.pos};
};

TEST_F(cardStoredTest, ATopUpIsRecordedAndTheBalanceWritten) {
  typeAll(";88001234?", "90", "100");
  hands.at("cardStored", [&](QWidget& shown) {
    EXPECT_EQ(text(shown, "txtBh"), "88001234");
    EXPECT_EQ(text(shown, "txtName"), "王芳");
    EXPECT_FALSE(field(shown, "txtName")->isEnabled());
    EXPECT_EQ(text(shown, "zklb"), "2");
    EXPECT_EQ(text(shown, "afterMoney"), "150");
    EXPECT_EQ(focusName(shown), "addMoney");
    field(shown, "txtbz")->setText(" 送10元'优惠 ");
  });
  confirm();
  confirmMessage();
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  EXPECT_THAT(messages, ElementsAre("充值成功！本次充值100,充值后卡内余额150  "));
  EXPECT_EQ(stored("cardbh||'|'||addmoney||'|'||inMoney||'|'||commerce||'|'||bz as v"
                   " from cardStored"),
            "88001234|100|90|150|送10元'优惠");
  EXPECT_EQ(books(), "1 150");
}

TEST_F(cardStoredTest, FiguresThatAreNoneWriteNothing) {
  const struct {
    const char *card, *paid, *credited, *message, *focus;
  } cases[] = {
      {"", "90", "100", "会员卡号不能为空,请输入卡号", "txtBh"},
      {";vip?", "90", "100", "会员卡号不能为空,请输入卡号", "txtBh"},
      {"88001234", "0", "100", "请输入正数", "inMoney"},
      {"88001234", "", "100", "请输入正数", "inMoney"},
      {"88001234", "-90", "100", "请输入正数", "inMoney"},
      {"88001234", "90'", "100", "请输入正数", "inMoney"},
      {"88001234", "90", "1e2", "请输入正数", "addMoney"},
      {"88001234", "90", "-100", "请输入正数", "addMoney"},
      {"88001234", "90", "922337203685477", "请输入正数", "addMoney"},
      {"99", "90", "100", "请输入正数", "beforeMoney"},
      {"' or ''='", "90", "100", "请输入正数", "beforeMoney"},
  };
  for (const auto& c : cases) {
    messages.clear();
    cardStored fresh(till.pos);
    hands.at("cardStored", [&](QWidget& shown) {
      field(shown, "txtBh")->setText(c.card);
      Hands::pressNow(Qt::Key_Return);
      field(shown, "inMoney")->setText(c.paid);
      field(shown, "addMoney")->setText(c.credited);
      QTest::keyClick(shown.findChild<QWidget*>("cmdOk2"), Qt::Key_Return);
    });
    confirmMessage();
    hands.at("cardStored", [&](QWidget& shown) {
      EXPECT_EQ(focusName(shown), c.focus) << c.card << " " << c.paid << " " << c.credited;
      Hands::pressNow(Qt::Key_Escape);
    });
    EXPECT_EQ(fresh.exec(), QDialog::Rejected);
    EXPECT_THAT(messages, ElementsAre(c.message)) << c.card << " " << c.paid << " " << c.credited;
    EXPECT_EQ(books(), "0 50");
  }
}

TEST_F(cardStoredTest, ABalanceOnceWorkedOutStandsButOnlyForItsOwnCard) {
  typeAll("88001234", "90", "100");
  hands.at("cardStored", [&](QWidget& shown) {
    field(shown, "addMoney")->setText("200");
    field(shown, "txtBh")->setText("99");
  });
  confirm();
  confirmMessage();
  hands.at("cardStored", [&](QWidget& shown) {
    EXPECT_EQ(focusName(shown), "txtBh");
    EXPECT_EQ(books(), "0 50");
    field(shown, "txtBh")->setText("88001234 ");
    QTest::keyClick(shown.findChild<QWidget*>("cmdOk2"), Qt::Key_Return);
  });
  confirmMessage();
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  EXPECT_EQ(messages.back(), "充值成功！本次充值200,充值后卡内余额150  ");
  EXPECT_EQ(books(), "1 150");
}

TEST_F(cardStoredTest, AmountsWaitForACardAndAHeldEnterIsOnePress) {
  hands.press("cardStored", {Qt::Key_Tab, Qt::Key_5});
  confirmMessage();
  hands.at("cardStored", [&](QWidget& shown) {
    EXPECT_EQ(text(shown, "inMoney"), "");
    EXPECT_EQ(focusName(shown), "txtBh");
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
  std::filesystem::create_directory(pdf);
  const struct {
    const char* port;
    bool folderGone;
    std::size_t messages, slips;
  } cases[] = {{"LPT1", false, 1, 0}, {"USB", false, 1, 1}, {"USB", true, 2, 0}};
  int stands = 50;
  for (const auto& c : cases) {
    messages.clear();
    till.pos.gPosSet.PPort = c.port;
    if (c.folderGone) std::filesystem::remove_all(pdf);
    cardStored fresh(till.pos);
    typeAll("88001234", "10", "10");
    confirm();
    for (std::size_t i = 0; i < c.messages; ++i) confirmMessage();
    EXPECT_EQ(fresh.exec(), QDialog::Accepted);
    EXPECT_EQ(messages.size(), c.messages);
    EXPECT_EQ(stored("card as v from member"), std::to_string(stands += 10));
    if (!c.folderGone) {
      EXPECT_EQ(slips(), c.slips);
    }
  }
}

}  // namespace
