#include "goodsin/frmGoodsIn.h"

#include <QLabel>
#include <fstream>

#include "Hands.h"
#include "ShopFixture.h"
#include "goodsin/GoodsCompletion.h"
#include "shop/GoodsStage.h"

namespace {

struct GoodsInTest : ShopFixture {
  Hands hands;

  void write(const std::string& rows) const {
    std::ofstream(folder.file("goods.csv")) << "代号;品名;售价\n" << rows;
  }
  // The step must end for the reading to go on.
  static void whenItSays(QWidget& dialog, const char* part, const std::function<void()>& then) {
    QTimer::singleShot(5, &dialog, [&dialog, part, then] {
      const bool says = dialog.findChild<QLabel*>("lblState")->text().contains(part);
      says ? then() : whenItSays(dialog, part, then);
    });
  }
  Hands& open() {
    return hands.at("frmGoodsIn", [this](QWidget& form) {
      form.findChild<QLineEdit*>("txtFile")->setText(
          QString::fromStdString(folder.file("goods.csv")));
      Hands::pressNow(Qt::Key_Return);
    });
  }
};

// What the first column is has to be said; then it is remembered.
TEST_F(GoodsInTest, BringsASheetInByTheKeyboard) {
  write("1001;米;2.5\n");
  open();
  hands.press("frmGoodsIn", {Qt::Key_Return});
  hands.press("frmMenu", {Qt::Key_Down, Qt::Key_Return});
  hands.press("frmGoodsIn", {Qt::Key_Tab}).type("frmGoodsIn", "wholesaler");
  hands.press("frmGoodsIn", {Qt::Key_Return});
  hands.at("dlgGoodsPreview", [](QWidget& dialog) {
    whenItSays(dialog, "按回车键导入", [] { Hands::pressNow(Qt::Key_Return); });
  });
  hands.says("messageBox", "已导入商品：新增 1 行，改动 0 行。");
  frmGoodsIn(pos).exec();
  EXPECT_EQ(stored("f_xsdj as v from spda where f_spbm = '1001'"), "2.5");
  EXPECT_EQ(stored("field as v from goods_mapping where heading = '代号'"), "商品编码");
}

TEST_F(GoodsInTest, ARefusedRowIsShownAndEscLeavesNothing) {
  GoodsMapping mapping = guessMapping({"代号", "品名", "售价"});
  mapping.choose(0, GoodsField::kItemCode);
  saveMapping(*pos.gConn, "批发部", mapping);
  write("1001;米;2.5\n1002;面;x\n");
  open();
  hands.at("dlgGoodsPreview", [](QWidget& dialog) {
    whenItSays(dialog, "不能导入 1 行", [] {
      Hands::pressNow(Qt::Key_Return);
      Hands::pressNow(Qt::Key_Escape);
    });
  });
  hands.press("frmGoodsIn", {Qt::Key_Escape});
  frmGoodsIn(pos).exec();
  EXPECT_EQ(stored("count(*) as v from spda"), "0");
}

TEST_F(GoodsInTest, AStartGoesOnWithAnImportThatWasEnded) {
  {
    GoodsStage stage(*pos.gConn, WriteSlices::Company::kOthers);
    stage.add({{}, {}, {{std::string("1001"), 5.0}}, {}});
    stage.seal();
  }
  {
    const GoodsCompletion completion(pos.gConn->source());
    QTRY_COMPARE(goodsWaiting(*pos.gConn), 0);
  }
  EXPECT_EQ(stock(), "5");
}

}  // namespace
