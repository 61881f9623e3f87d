#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <utility>

#include "Hands.h"
#include "OtherTill.h"
#include "TillFixture.h"
#include "sale/frmSell.h"

using enum Qt::Key;

/// The sale window of a till of a shop, driven by real key events.
class OtherTillsTest : public TillFixture {
 protected:
  void show(const std::function<void()>& cashier) {
    hands.at("frmSell", [&](QWidget&) {
      ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
      cashier();
      press({Key_Escape});
    });
    window.openModal();
    EXPECT_TRUE(hands.idle());
  }
  void press(std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys) QTest::keyClick(window.findChild<QLineEdit*>("t"), key);
  }

  Hands hands;
  frmSell window{pos, {}, [] {}};
};

TEST_F(OtherTillsTest, GoesOnWithWhatAnotherTillHolds) {
  auto shop = std::make_unique<OtherTill>();
  OtherTill& other = *shop;
  pos.bills = std::move(shop);
  const auto hear = [this](const char* said) {
    hands.at("frmMsg", [said](QWidget& message) {
      EXPECT_EQ(message.findChild<QLabel*>("Label1")->text(), said);
      Hands::pressNow(Key_Escape);
    });
  };
  const auto choose = [&](BillAuthority::Reply reply, const char* said) {
    hands.at("frmRecord", [](QWidget& form) {
      const auto* bills = form.findChild<QTableView*>("listSell")->model();
      EXPECT_EQ(bills->index(0, 2).data().toString(), "08:00");
      EXPECT_EQ(bills->index(0, 3).data().toString(), "3 号");
      EXPECT_FALSE(form.findChild<QTableView*>("listSell")->isColumnHidden(3));
      Hands::pressNow(Key_Return);
    });
    static_cast<OtherTill&>(*pos.bills).reply = reply;
    if (*said != '\0') hear(said);
    press({Key_F6});
  };
  show([&] {
    other.holds = false;
    other.reply = BillAuthority::Reply::kNone;
    hear("没有联网，看不到别台挂的单。");
    press({Key_F6});
    other.holds = true;
    choose(BillAuthority::Reply::kAway, "挂着这张单的收银机没有开机或没有联网，拿不过来。");
    choose(BillAuthority::Reply::kUnknown, "这张挂单刚刚已被别的收银机调走。");
    choose(BillAuthority::Reply::kNone, "没有等到这张挂单。它如果稍后交过来，会列在本机的挂单里。");
    choose(BillAuthority::Reply::kDone, "");
    EXPECT_EQ(window.findChild<QLabel*>("txtmoney")->text(), "2件商品，合计5元");
    EXPECT_EQ(stored("quantity as v from stock where spbm = '1001'"), "98");
    other.reply = BillAuthority::Reply::kNone;
    press({Key_F5});
  });
  EXPECT_EQ(stored("count(*) as v from sell where held = 1"), "1") << "the screen can be left";
}
