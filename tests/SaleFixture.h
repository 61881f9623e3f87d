#pragma once

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "TemporaryFolder.h"
#include "app/posMod.h"
#include "checkout/CashDrawer.h"
#include "checkout/Checkout.h"
#include "checkout/CustomerDisplay.h"
#include "checkout/LineReceipt.h"
#include "checkout/SaleScreen.h"
#include "checkout/SaleState.h"
#include "checkout/Settlement.h"
#include "platform/PortError.h"
#include "store/Connection.h"
#include "store/DataFile.h"

/// Ports as the settings file has them, but for the serial line, which is kept in memory.
class RecordingPorts : public Ports {
 public:
  using Ports::Ports;

  std::unique_ptr<ByteSink> serialLine(const std::string& name) const override {
    opened.push_back(name);
    if (serialBroken) throw PortError("端口 " + name + " 打不开");
    return std::make_unique<Line>(*this);
  }

  bool serialBroken = false;
  mutable std::vector<std::string> opened;
  mutable std::string shown;  ///< the bytes sent to the serial line

 private:
  struct Line : ByteSink {
    explicit Line(const RecordingPorts& owner) : ports(owner) {}
    void send(std::string_view bytes) override {
      if (ports.serialBroken) throw PortError("串口断开");
      ports.shown += bytes;
    }
    const RecordingPorts& ports;
  };
};

/// A sale screen without a window: remembers what it was told, answers as the test says.
class FakeScreen : public SaleScreen {
 public:
  explicit FakeScreen(SaleState& state) : state_(state) {}

  void rowsChanged() override {}
  void PlaceEditor() override { state_.clearOnKey = true; }
  QString input() const override { return text; }
  void setInput(const QString& value) override { text = value; }
  void setTitle1(const QString& value) override { title1 = value.toStdString(); }
  void setTitle3(const QString& value) override { title3 = value.toStdString(); }
  void setStatus(const QString& value) override { status = value.toStdString(); }
  void setMemberInfo(const QString& value) override { memberInfo = value.toStdString(); }
  void ShowMessage(const QString& value) override { messages.push_back(value.toStdString()); }
  void messageBox(const QString& value, const QString&) override {
    messages.push_back(value.toStdString());
  }
  bool askYesNo(const QString& value, const QString& title, bool yesPreselected) override {
    messages.push_back((title + ":" + value + (yesPreselected ? " 是" : " 否")).toStdString());
    asked();
    return answersYes.value_or(yesPreselected);
  }
  QString prompt(const QString&, const QString&) override { return promptAnswer; }
  int choose(int, const std::function<QString(int)>&) override { return choice; }
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

  QString text, promptAnswer;
  std::string title1, title3, status, memberInfo;
  std::vector<std::string> messages;    ///< of the message window, message boxes and questions
  std::optional<bool> answersYes;       ///< to a question; else the preselected answer
  std::function<void()> asked = [] {};  ///< what happens while the question is shown
  int choice = -1;
  /// What the cashier does in the settlement dialog.
  std::function<void(Settlement&)> pay = [](Settlement& s) { s.confirmCash(s.cashText()); };
  bool ended = false;

  /// All that was told since it was last asked for.
  std::string said() {
    std::string all;
    for (const std::string& each : std::exchange(messages, {})) {
      all += (all.empty() ? "" : "|") + each;
    }
    return all;
  }

 private:
  SaleState& state_;
};

/// A shop with its till at 9:05 on a Sunday: operator 1, two goods in stock, one member with a
/// stored-value card, receipt texts, and everything between the sale's state and its devices. LPT1
/// is a file, the page printer a folder.
class SaleFixture : public testing::Test {
 protected:
  SaleFixture() {
    std::filesystem::create_directories(folder.path() / "data");
    std::filesystem::create_directories(folder.path() / "pdf");
    std::ofstream(folder.file("Config.ini"))
        << "[Database]\nPath=data/shop.db\n[Ports]\nLPT1=" << folder.file("lpt1")
        << "\nUSB=" << folder.file("pdf") << "\n";
    fillShop(*createDataFile({folder.path() / "data/shop.db", ""}));
    EXPECT_EQ(pos.OpenDataStore(), "");
    pos.start();
    pos.gOperator = std::make_shared<ClsOperator>();
    pos.gOperator->Init(*pos.gConn, 1);
  }

  static void fillShop(Connection& shop) {
    shop.runScript(R"(
      insert into operators (id, name, code, password) values
        (1, '张三', '01', '$argon2id$'), (2, '李四', '02', '$argon2id$');
      insert into stock values ('1001', 100), ('1002', 50);
      insert into member (bh, name, card, password, points, join_date)
        values ('8001', '王芳', 88.5, 'Pw1', 3, '2026-01-02 00:00:00');
      insert into sys_param values ('ShopName', '好邻居便利店'), ('ReceiptText1', '欢迎光临'),
        ('ReceiptText2', '谢谢惠顾'), ('ReceiptText3', '电话 010-1234');
    )");
  }

  /// One value of the data file, as text.
  std::string stored(const std::string& query) {
    const Recordset found = pos.gConn->Open("select " + query);
    return found.count() == 0 ? "none" : found.row(0).text("v");
  }

  std::string stock(const std::string& itemCode = "1001") {
    return stored("quantity as v from stock where spbm = '" + itemCode + "'");
  }
  /// Until mended, every statement of that kind ("update on sell") fails.
  void breakStore(const std::string& kind, const std::string& name = "broken") {
    pos.gConn->runScript("create temp trigger " + name + " before " + kind +
                         " begin select raise(abort, 'disk'); end");
  }
  void mendStore(const std::string& name = "broken") {
    pos.gConn->runScript("drop trigger " + name);
  }
  void setParameter(const char* name, const char* value) {
    EXPECT_EQ(pos.gSysParam.set(name, value), "");
  }

  static std::string fileBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::size_t pagesPrinted() const {
    const std::filesystem::directory_iterator pdfs(folder.path() / "pdf");
    return static_cast<std::size_t>(std::distance(begin(pdfs), end(pdfs)));
  }

  TemporaryFolder folder;
  DateTime now{{2026, 11, 22}, 9, 5, 3};
  posMod pos{folder.path(), [this] { return now; }};
  SaleState state;
  FakeScreen screen{state};
  RecordingPorts ports{pos.configIni};
  const Outage::Report report = [this](const QString& text) { screen.ShowMessage(text); };
  CustomerDisplay display{ports, pos.gPosSet, state, report};
  CashDrawer drawer{ports, pos.gPosSet, state, display, report};
  LineReceipt receipt{pos, state, drawer, report};
  Checkout checkout{pos, state, screen, display, receipt};
};
