#pragma once

#include <QTableView>

#include "Hands.h"
#include "ShopFixture.h"
#include "store/Transaction.h"

/// The rows of a list: each cell with a blank behind it, each row with a line.
inline std::string rowsOf(QWidget& window, const char* list, std::initializer_list<int> columns) {
  const QAbstractItemModel& model = *window.findChild<QTableView*>(list)->model();
  QString all;
  for (int row = 0; row < model.rowCount(); ++row) {
    for (const int column : columns) all += model.index(row, column).data().toString() + " ";
    all += "|";
  }
  return all.toStdString();
}

/// Presses keys until that control has the focus, and types there.
inline void typeAt(QWidget& window, const char* control, const QString& keys) {
  for (int i = 0; i < 30 && window.focusWidget()->objectName() != control; ++i)
    Hands::pressNow(Qt::Key_Tab);
  EXPECT_EQ(window.focusWidget()->objectName(), control);
  if (auto* field = qobject_cast<QLineEdit*>(window.focusWidget())) field->selectAll();
  Hands::typeNow(keys);
}

/// The shop at noon, with two categories and three goods.
class ReportsFixture : public ShopFixture {
 protected:
  ReportsFixture() {
    now = {{2026, 11, 22}, 12, 0, 0};
    store.runScript(R"(
      insert into SP_LB values (2, '饮料'), (1, '食品');
      insert into spda (f_spbm, f_spmc, f_sptm, f_Ggxh, f_jldw, f_splbmc) values
        ('A1', '康师傅红烧牛肉面', '690001', 'KSF', '包', '食品'),
        ('B2', '=1+1', '69000''2', 'KS-2', '', '食品'), ('C3', '矿泉水', '690003', 'KQS', '瓶', '食品');
    )");
  }

  /// At 2.50 each.
  void sell(int bill, const std::string& time, const std::string& code, double quantity) {
    store.run(
        "insert into sellProducts (sellId, insert_Date, bm, name, unit, amount, price, discount,"
        " money, splbmc) select ?, ?, f_spbm, f_spmc, f_jldw, ?, 2.5, 1, ? * 2.5, ? from spda"
        " where f_spbm = ?",
        bill, time, quantity, quantity, code == "C3" ? "饮料" : "食品", code);
  }
  /// Lines from midnight on, one bill each.
  void sellMany(int lines) {
    Transaction all(store);
    for (int i = 1; i <= lines; ++i) sell(i, "2026-11-22 00:00:01", "A1", 1);
    all.commit();
  }
  void settle(int bill, const std::string& time, double quantity, const char* amount,
              const char* phone = "0", const char* slip = "", int cashier = 1) {
    store.run(
        "insert into sell (id, sell_time, operator_id, state, quantity, amount, phone_pay,"
        " phone_slip) values (?, ?, ?, 1, ?, ?, ?, ?)",
        bill, time, cashier, quantity, *Currency::parse(amount), *Currency::parse(phone),
        std::string(slip));
  }

  Connection& store = *pos.gConn;
};
