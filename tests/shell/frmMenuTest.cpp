#include "shell/frmMenu.h"

#include <QScreen>

#include "Hands.h"
#include "app/KeyBoard.h"

class frmMenuTest : public testing::Test {
 protected:
  frmMenuTest() {
    menu_.MenuClick = [this](const MenuItem& Menu) { clicked_ += Menu.Key; };
  }
  void fill(int count) {
    for (int index = 0; index < count; ++index) menu_.AddMenu("商品", QString::number(index + 1));
  }
  QString show(const QString& keys, int mode = 0) {
    hands_.type("frmMenu", keys);
    return menu_.ShowMenu(mode);
  }

  KeyBoard keys_;
  frmMenu menu_{keys_};
  Hands hands_;
  QString clicked_;
};

TEST_F(frmMenuTest, TheHighlightWrapsAndIsKeptBetweenShowings) {
  fill(5);
  for (const auto& [keys, chosen] :
       {std::pair("↑\n", "5"), {"\n", "5"}, {"↓\n", "1"}, {"←\tx↓\n", "2"}, {"⎋", ""}}) {
    EXPECT_EQ(show(keys), chosen) << keys;
  }
  EXPECT_EQ(clicked_, "5512");
  EXPECT_EQ(show("⎋↓\n", 1), "3") << "mode 1 cannot be left";
  keys_.mUp = 'W';
  keys_.mEnter = 'E';
  EXPECT_EQ(show("w↑\n"), "2") << "the plain Enter is the mapped one";
}

TEST_F(frmMenuTest, ThePointerHighlightsAndClicks) {
  fill(3);
  hands_.at("frmMenu", [this](QWidget& shown) {
    auto* entries = shown.findChild<QWidget*>("lblMenu");
    const int row = entries->height() / 3;
    QTest::mouseMove(entries, QPoint(20, row + row / 2));
    EXPECT_EQ(menu_.currentIndex(), 1);
    QTest::mouseClick(entries, Qt::LeftButton, {}, QPoint(20, 2 * row + row / 2));
  });
  EXPECT_EQ(menu_.ShowMenu(1), "3");
}

TEST_F(frmMenuTest, OfTenThousandEntriesItAsksForThoseThatShow) {
  int asked = 0;
  menu_.AddMenus(10'000, [&asked](int position) {
    ++asked;
    return QString("第 %1 种名字很长的商品 Size 500 ml ").arg(position).repeated(6);
  });
  hands_.at("frmMenu", [](QWidget& shown) {
    shown.grab();
    EXPECT_TRUE(shown.screen()->availableGeometry().contains(shown.frameGeometry()));
    Hands::typeNow("↑\n");
  });
  EXPECT_EQ(menu_.ShowMenu(0), "10000");
  EXPECT_GT(asked, 5);
  EXPECT_LT(asked, 200);
}

TEST_F(frmMenuTest, NoCaptionIsCutOffWhereThereIsRoom) {
  const QString caption = "纯棉毛巾 蓝 34x74  河北高阳  库存：777";
  menu_.AddMenus(2, [&caption](int) { return caption; });
  hands_.at("frmMenu", [&](QWidget& shown) {
    const auto* entries = shown.findChild<QWidget*>("lblMenu");
    constexpr int kMargins = 36;
    EXPECT_GE(entries->width() - kMargins, entries->fontMetrics().horizontalAdvance(caption));
    Hands::pressNow(Qt::Key_Escape);
  });
  menu_.ShowMenu(0);
}
