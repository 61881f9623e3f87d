#pragma once

#include <gmock/gmock.h>

#include <QString>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "RecordingPorts.h"
#include "TemporaryFolder.h"
#include "app/posMod.h"
#include "store/Connection.h"
#include "store/DataFile.h"

/// A screen without a window, as far as messages go: remembers what it was told, answers as the
/// test says.
template <class Screen>
class Told : public Screen {
 public:
  void ShowMessage(const QString& value) override { messages.push_back(value.toStdString()); }
  void messageBox(const QString& value, const QString&) override {
    messages.push_back(value.toStdString());
  }
  bool askYesNo(const QString& value, const QString& title, bool yesPreselected) override {
    messages.push_back((title + ":" + value + (yesPreselected ? " 是" : " 否")).toStdString());
    asked();
    return answersYes.value_or(yesPreselected);
  }

  Permit leave(const Deed& deed) override { return mayDo(deed); }

  /// Whether a deed is allowed; else every one is.
  std::function<Permit(const Deed& deed)> mayDo = [](const Deed& deed) {
    return std::make_shared<const Grant>(Grant{deed});
  };
  std::vector<std::string> messages;    ///< of the message window, message boxes and questions
  std::optional<bool> answersYes;       ///< to a question; else the preselected answer
  std::function<void()> asked = [] {};  ///< what happens while the question is shown

  /// All that was told since it was last asked for.
  std::string said() {
    std::string all;
    for (const std::string& each : std::exchange(messages, {})) {
      all += (all.empty() ? "" : "|") + each;
    }
    return all;
  }
};

/// A shop with its till at 9:05 on a Sunday: operator 1, two goods in stock, one member with a
/// stored-value card, and receipt texts. LPT1 is a file.
class ShopFixture : public testing::Test {
 protected:
  ShopFixture() {
    std::filesystem::create_directories(folder.path() / "data");
    std::ofstream(folder.file("Config.ini"))
        << "[Database]\nPath=data/shop.db\n[Ports]\nLPT1=" << folder.file("lpt1") << "\n";
    fillShop(*createDataFile({folder.path() / "data/shop.db", ""}));
    EXPECT_EQ(pos.OpenDataStore(), "");
    pos.start();
    pos.gOperator = std::make_shared<ClsOperator>();
    pos.gOperator->Init(*pos.gConn, 1);
  }

  static void fillShop(Connection& shop) {
    shop.runScript(R"(
      insert into operators (id, name, code, password) values
        (1, '张三', '01', '$argon2id$1'), (2, '李四', '02', '$argon2id$2');
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
  static RecordingPorts& listenTo(posMod& till) {
    auto recording = std::make_unique<RecordingPorts>(till.configIni);
    RecordingPorts& ports = *recording;
    till.ports = std::move(recording);
    return ports;
  }

  TemporaryFolder folder;
  DateTime now{{2026, 11, 22}, 9, 5, 3};
  posMod pos{folder.path(), [this] { return now; }};
  RecordingPorts& ports = listenTo(pos);
};
