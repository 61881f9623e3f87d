#include <gmock/gmock.h>

#include <QComboBox>
#include <QPushButton>
#include <filesystem>
#include <fstream>

#include "Hands.h"
#include "InstalledTill.h"
#include "app/posMod.h"
#include "driver/TillDriver.h"
#include "setup/ColoursPage.h"
#include "setup/ReceiptPreview.h"
#include "setup/frmSetup.h"
#include "shell/Style.h"
#include "store/Connection.h"

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

/// A till whose data file is not there yet, or is a backup only.
struct Unopened : InstalledTill {
  Unopened() { fs::rename(dataFile(), backup()); }
  fs::path backup() const { return folder() / "backup.mdb"; }
  bool leftNothing() const { return fs::is_empty(program() / "data"); }
};

TEST(frmSetupTest, AShopIsMadeByKeyboardAndSellsWithoutARestart) {
  const Unopened shop;
  fs::remove(shop.program() / "data");
  TillDriver till(shop.program());
  till.waitFor("messageBox");
  till.waitForText("qt_msgbox_label", "还没有开店的，接下来就可以开店。");
  till.key("Return");
  till.sync();
  till.waitFor("messageBox");
  till.waitForText("qt_msgbox_label", "要现在开店吗？");
  till.key("Return");
  till.waitFor("frmSetup");
  for (const char* page : {"PgDown", "PgDown"}) till.key(page);
  till.type("好邻居");
  till.key("PgDown");
  for (const char* answer : {"王店主", "秘密", "秘密", "小李", "222", "222"}) till.enter(answer);
  till.key("Return");
  till.waitForText("Label1", "商品");
  till.key("Down");
  for (const char* answer : {"6901234567892", "红糖", "袋", "5.5", "12"}) till.enter(answer);
  till.waitForText("lblTyped", "已加入 红糖");
  for (int page = 0; page < 2; ++page) till.key("PgDown");
  till.waitForText("Label1", "颜色");
  till.key("PgDown");
  till.waitFor("frmMenu");
  till.key("Return");
  till.waitFor("frmLogin");
  till.enter("2");
  till.enter("222");
  till.waitFor("frmSell");
  till.waitForText("title", "好邻居");
  till.kill();
  const std::unique_ptr<Connection> made = shop.open();
  Rows goods = made->query("select spmc, xsdj from tmda");
  ASSERT_TRUE(goods.next());
  EXPECT_EQ(goods.text("spmc") + goods.text("xsdj"), "红糖5.5");
  const IniFile settings(shop.program() / "Config.ini");
  EXPECT_EQ(settings.read("Color", "C6"), "16777215");
  EXPECT_EQ(settings.read("POS", "PPort"), "LPT1") << "as it was before";
}

TEST(frmSetupTest, LeftOnAnyPageItLeavesNothing) {
  const Unopened shop;
  const auto settings = fs::last_write_time(shop.program() / "Config.ini");
  posMod pos(shop.program());
  frmSetup form(pos, pos.gKeyBoard);
  form.open();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
  form.findChild<QLineEdit*>("ShopName")->setText("好邻居");
  for (const char* name : {"txtOwnerName", "txtOwnerPassword", "txtOwnerAgain"})
    form.findChild<QLineEdit*>(name)->setText("1");
  for (int page = 1; page <= 7; ++page) {
    EXPECT_THAT(form.findChild<QLabel*>("Label1")->text().toStdString(),
                HasSubstr(std::to_string(page)));
    EXPECT_TRUE(form.isVisible() && shop.leftNothing()) << page;
    Hands hands;
    const Qt::Key answer = page < 7 ? Qt::Key_N : Qt::Key_Y;
    hands.at("messageBox", [answer](QWidget& box) { QTest::keyClick(&box, answer); });
    Hands::pressNow(Qt::Key_Escape);
    if (page < 7) Hands::pressNow(Qt::Key_PageDown);
  }
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(form.result(), QDialog::Rejected);
  EXPECT_TRUE(shop.leftNothing());
  EXPECT_EQ(fs::last_write_time(shop.program() / "Config.ini"), settings);
}

TEST(frmSetupTest, WhatCannotBeIsSaidOnItsPageAndABackupIsTakenOnlyWhenItIsOne) {
  const Unopened shop;
  posMod pos(shop.program());
  frmSetup form(pos, pos.gKeyBoard);
  form.open();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
  const auto refused = [&](const QString& why) {
    Hands hands;
    hands.says("messageBox", why);
    Hands::pressNow(Qt::Key_PageDown);
    EXPECT_TRUE(hands.idle());
  };
  const auto set = [&](const char* name, const QString& text) {
    form.findChild<QLineEdit*>(name)->setText(text);
  };
  for (int page = 0; page < 2; ++page) Hands::pressNow(Qt::Key_PageDown);
  refused("请写店名");
  set("ShopName", "好邻居");
  std::string receipt;
  for (const PlacedText& text : form.findChild<ReceiptPreview*>()->document().texts)
    receipt += text.text + "\n";
  EXPECT_THAT(receipt, HasSubstr(" 好邻居 ")) << "with the line printer of the settings";
  EXPECT_THAT(receipt, HasSubstr("应收16.9现金20.0"));
  Hands::pressNow(Qt::Key_PageDown);
  refused("操作员的姓名不能空着");
  set("txtOwnerName", "王店主");
  set("txtOwnerPassword", "1");
  refused("两次输入的密码不一样。");
  set("txtOwnerAgain", "1");
  Hands::pressNow(Qt::Key_PageDown);
  set("txtName", "红糖");
  refused("商品编码和条");
  set("txtName", "");
  for (int page = 0; page < 4; ++page) Hands::pressNow(Qt::Key_PageUp);
  form.findChild<QComboBox*>("cobFrom")->setCurrentIndex(2);
  refused("没有这个备份文件。");
  set("txtBackup", QString::fromStdString((shop.program() / "till").string()));
  for (int page = 0; page < 2; ++page) Hands::pressNow(Qt::Key_PageDown);
  refused("店铺没有建立：");
  EXPECT_TRUE(shop.leftNothing());
  set("txtBackup", QString::fromStdString(shop.backup().string()));
  for (int page = 0; page < 2; ++page) Hands::pressNow(Qt::Key_PageUp);
  for (int page = 0; page < 3; ++page) Hands::pressNow(Qt::Key_PageDown);
  EXPECT_EQ(form.result(), QDialog::Accepted);
  ASSERT_EQ(pos.OpenDataStore(), "");
  EXPECT_EQ(pos.missingOperator(), "");
}

/// The step that looks must end for the reading to go on.
void enterWhenEnabled(QWidget& window) {
  QTimer::singleShot(5, &window, [&window] {
    const bool isRead = window.findChild<QPushButton*>("cmdOk")->isEnabled();
    isRead ? Hands::pressNow(Qt::Key_Return) : enterWhenEnabled(window);
  });
}

TEST(frmSetupTest, ASheetIsSeenBeforeAndComesInWithTheShopOrNotAtAll) {
  const Unopened shop;
  const auto write = [&](const char* rows) {
    std::ofstream(shop.folder() / "goods.csv") << "代号;品名;售价\n" << rows;
  };
  write("1001;米;2.5\n");
  posMod pos(shop.program());
  frmSetup form(pos, pos.gKeyBoard);
  form.open();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
  form.findChild<QLineEdit*>("ShopName")->setText("好邻居");
  for (const char* name : {"txtOwnerName", "txtOwnerPassword", "txtOwnerAgain"})
    form.findChild<QLineEdit*>(name)->setText("1");
  for (int page = 0; page < 4; ++page) Hands::pressNow(Qt::Key_PageDown);
  Hands hands;
  hands.at("frmGoodsIn", [&](QWidget& window) {
    window.findChild<QLineEdit*>("txtFile")->setText(
        QString::fromStdString(shop.folder() / "goods.csv"));
    Hands::typeNow("\n\n");  // opens it, and asks what the first column is
  });
  hands.type("frmMenu", "↓\n").type("frmGoodsIn", "\tgrossist\n");
  hands.at("dlgGoodsPreview", [](QWidget& window) { enterWhenEnabled(window); });
  Hands::pressNow(Qt::Key_Return);
  EXPECT_EQ(form.findChild<QLabel*>("lblSheet")->text().toStdString(),
            "goods.csv：1 行，开店时导入");
  form.findChild<QLineEdit*>("txtCode")->setText("2002");  // not added by Enter
  form.findChild<QLineEdit*>("txtName")->setText("面");
  form.findChild<QLineEdit*>("txtPrice")->setText("3");
  for (int page = 0; page < 2; ++page) Hands::pressNow(Qt::Key_PageDown);
  hands.press("dlgMaking", {Qt::Key_Escape});
  Hands::pressNow(Qt::Key_PageDown);
  write(";米;2.5\n");  // the stick has another sheet now
  hands.says("messageBox", "店铺没有建立：");
  Hands::pressNow(Qt::Key_PageDown);
  EXPECT_TRUE(hands.idle() && form.isVisible() && shop.leftNothing());
  write("1001;米;2.5\n");
  Hands::pressNow(Qt::Key_PageDown);
  EXPECT_EQ(form.result(), QDialog::Accepted);
  const std::unique_ptr<Connection> made = shop.open();
  Rows goods = made->query("select group_concat(f_spmc || f_xsdj, ' ') as all_goods from spda");
  ASSERT_TRUE(goods.next());
  EXPECT_EQ(goods.text("all_goods"), "米2.5 面3");
}

/// Of relative luminances (WCAG 2, contrast ratio).
double contrast(int a, int b) {
  const double first = luminance(settingColour(a)), second = luminance(settingColour(b));
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

TEST(ColoursPageTest, EveryPaletteCanBeRead) {
  for (const auto& [name, colours] : palettes()) {
    for (const auto& [text, background] : {std::pair(2, 1), {3, 1}, {4, 0}, {5, 0}})
      EXPECT_GE(contrast(colours[text], colours[background]), 4.5) << name << " C" << text + 1;
  }
}

}  // namespace
