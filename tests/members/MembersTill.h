#pragma once

#include <gmock/gmock.h>

#include <QLineEdit>
#include <fstream>

#include "Hands.h"
#include "shell/TestTill.h"
#include "store/Connection.h"

/// A till with one member, 王芳 with the card 88001234 and 50 yuan on it, and the hands in front.
class MembersTill : public testing::Test {
 protected:
  MembersTill() {
    till.pos.gConn->run(
        "insert into member (bh, name, hyzklb, card, sex, age, phone, total_spent, points, "
        "discount, join_date) values ('88001234', '王芳', '2', 50, '女', 31, '13900000001', 120.5, "
        "7, 0.9, '2026-01-02 00:00:00')");
  }

  /// One value of the data file, as text.
  std::string stored(const std::string& query) {
    return till.pos.gConn->Open("select " + query).row(0).text("v");
  }
  static QLineEdit* field(QWidget& window, const char* name) {
    return window.findChild<QLineEdit*>(name);
  }
  static std::string text(QWidget& window, const char* name) {
    return field(window, name)->text().toStdString();
  }
  static std::string focusName(QWidget& window) {
    return window.focusWidget()->objectName().toStdString();
  }

  TestTill till;
  Hands hands;
  std::vector<std::string> messages;
};
