#pragma once

#include <gmock/gmock.h>

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <fstream>

#include "Hands.h"
#include "shell/TestTill.h"

/// A till with one member, 王芳 with the card 88001234 and 50 yuan on it, and the hands in front.
class MembersTill : public testing::Test {
 protected:
  MembersTill() {
    till.pos.gConn->run(
        "insert into member (bh, name, hyzklb, card, sex, age, phone, total_spent, points, "
        "discount,"
        " join_date) values ('88001234', '王芳', '2', 50, '女', 31, '13900000001', 120.5, 7, 0.9,"
        " '2026-01-02 00:00:00')");
  }

  /// One value of the data file, as text.
  std::string stored(const std::string& query) {
    const Recordset found = till.pos.gConn->Open("select " + query);
    return found.count() == 0 ? "none" : found.row(0).text("v");
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
  /// The next message box is read (with its title before it when that says an error) and
  /// confirmed.
  void confirmMessage() {
    hands.at("messageBox", [this](QWidget& box) {
      QString said = static_cast<QMessageBox&>(box).text().remove(QChar(0x200b));
      if (box.windowTitle() == "出错") said.prepend("出错:");
      messages.push_back(said.toStdString());
      Hands::pressNow(Qt::Key_Return);
    });
  }

  TestTill till;
  Hands hands;
  std::vector<std::string> messages;
};
