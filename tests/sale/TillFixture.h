#pragma once

#include "ShopFixture.h"
#include "checkout/Settlement.h"
#include "sale/SaleSession.h"

/// A sale screen without a window: keeps the picture that it was shown last.
class TillScreen : public Told<SaleScreen> {
 public:
  void show(const SalePicture& picture) override {
    rows.clear();
    for (const BillRow& row : picture.rows) rows.push_back(row.cells);
    framed = {picture.row, picture.column};
    lastColumn = picture.lastColumn;
    text = picture.input;
    title1 = picture.title1.toStdString();
    title3 = picture.title3.toStdString();
    status = picture.status.toStdString();
    memberInfo = picture.memberInfo.toStdString();
  }
  /// The answers in their order. The question repeats for ever without one that it takes.
  QString prompt(const QString& title, const QString& message) override {
    if (!title.isEmpty()) messages.push_back((title + message).toStdString());
    if (answers.isEmpty()) throw std::logic_error("a question is asked and no answer is left");
    return answers.takeFirst();
  }
  int choose(int count, const std::function<QString(int)>& caption) override {
    offered.clear();
    for (int position = 0; position < count; ++position) offered << caption(position);
    return choice;
  }
  std::int32_t chooseHeldBill(const std::vector<std::shared_ptr<ClsSell>>& bills) override {
    const auto position = static_cast<std::size_t>(choice);
    return choice < 0 ? 0 : bills.at(position)->BillNo();
  }
  bool settle(Settlement& settlement) override {
    settlement.begin();
    pay(settlement);
    return settlement.settled();
  }
  void endProgram() override { ended = true; }

  std::vector<std::array<std::string, BillRow::kColumns>> rows;
  std::pair<int, BillRow::Column> framed;  ///< row and column of the framed cell
  BillRow::Column lastColumn = BillRow::kCode;
  QString text;  ///< of the input line
  std::string title1, title3, status, memberInfo;

  QStringList offered, answers;
  int choice = -1;
  /// What the cashier does in the settlement dialog.
  std::function<void(Settlement&)> pay = [](Settlement& s) { s.confirmCash(s.cashText()); };
  bool ended = false;
};

/// A till whose sale screen has just opened, in a shop with goods of every kind.
class TillFixture : public ShopFixture {
 protected:
  static constexpr int kEnter = 13, kEsc = 27, kLeft = 37, kUp = 38, kRight = 39, kDown = 40,
                       kF1 = 112, kF2 = 113, kF4 = 115, kF5 = 116, kF6 = 117, kF12 = 123;
  static constexpr const char* kWater = "6901234567892";   // 1001, 2.50
  static constexpr const char* kCrate = "6901234567885";   // 1001 by twelve, 28.00
  static constexpr const char* kDouble = "6900000000029";  // 1002 and 1003
  static constexpr const char* kNoPrice = "6900000000036";
  static constexpr const char* kApples = "2000001";  // 1005, 5.98 a pound

  TillFixture() {
    pos.gConn->runScript(R"(
      insert into tmda (sptm, ggxh, spbm, spmc, spcd, jldw, xsdj, pfj, zk, dwbl, zhjj, splbmc) values
        ('6901234567892', '550ml', '1001', '矿泉水', '浙江', '瓶', 2.5, 2.2, 1, 1, 1.2, '饮料'),
        ('6901234567885', '550ml*12', '1001', '矿泉水整箱', '浙江', '箱', 28, 0, 1, 12, 14, '饮料'),
        ('6900000000029', '50g', '1002', '绿茶', '杭州', '盒', 12.5, Null, 0.9, 1, 8, '茶'),
        ('6900000000029', '80g', '1003', '红茶', '安徽', '盒', 13.5, Null, 1, 1, 8, '茶'),
        ('6900000000036', '大', '1004', '气球', '', '个', 0, Null, 1, 1, 0.1, '玩具'),
        ('2000001', '散', '1005', '苹果', '烟台', '斤', 5.98, Null, 1, 1, 3, '水果');
      insert into tmda (sptm, spbm, spmc, xsdj, dwbl) values ('6900000000999', '1006', '坏价', 'x', 1);
      insert into spda (f_spbm, f_spmc, f_sphh, f_jldw, f_xsdj, f_pfj, f_zk, f_spcd) values
        ('2001', '铅笔', 'QB-01', '支', 1.5, Null, 1, '上海'),
        ('2002', '橡皮', 'XP-02', '块', Null, 0.5, 1, ''),
        ('2003', '茶杯', 'X50g', '只', 9, Null, 1, '');
    )");
  }
  void open() { ASSERT_TRUE(session.open()); }

  /// A key, with what the window's input line shows; true when it was used up.
  bool key(int code) { return session.key(code, till.text); }
  void press(int code) { static_cast<void>(key(code)); }
  /// Types a text as the window would: the first key empties a shown value.
  void type(const QString& typed) {
    for (const QChar each : typed) {
      if (!key(each.toUpper().unicode())) till.text += each;
    }
  }
  void enter(const QString& typed) {
    session.textComing(till.text);
    till.text = typed;
    press(kEnter);
  }
  std::string lines() { return stored("count(*) as v from sellProducts"); }
  const std::string& cell(int row, BillRow::Column column) const {
    return till.rows.at(static_cast<std::size_t>(row)).at(column);
  }
  ClsSell& bill() const { return *session.sale().bill(); }

  TillScreen till;
  int searches = 0;
  SaleSession session{pos, till, {{"search", {[this] { ++searches; }}}}};
};
