#include <gmock/gmock.h>

#include <QGuiApplication>
#include <filesystem>

#include "Hands.h"
#include "SettingsTill.h"
#include "base/Gbk.h"
#include "platform/PseudoTerminal.h"
#include "settings/frmPosSet.h"

namespace {

using testing::HasSubstr;

/// The dialog over a settings file, driven by keys.
struct Dialog {
  explicit Dialog(posMod& pos) : form(pos) {
    form.open();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
  }
  std::string shown() {
    return Hands::textsOf(form,
                          "cobPPort cobPModel printAmount printOption cobMBPort cobCVPort "
                          "cobCVModel cobVMouse");
  }
  /// Each list `steps` entries down, from the first list on, Enter after each.
  static void stepDown(std::initializer_list<int> steps) {
    for (const int count : steps) Hands::typeNow(QString(count, u'↓') + "\n");
  }
  void click(const char* button) {
    form.findChild<QWidget*>(button)->setFocus();
    Hands::typeNow("\n");
  }
  /// "测试", which says that.
  void test(const std::string& result) {
    Hands hands;
    hands.at("messageBox", [result](QWidget& box) {
      EXPECT_THAT(box.findChild<QLabel*>("qt_msgbox_label")->text().toStdString(),
                  HasSubstr(result));
      Hands::pressNow(Qt::Key_Return);
    });
    click("cmdTest");
  }

  frmPosSet form;
};

TEST(frmPosSetTest, StoresWhatIsChosenAndKeepsWhatIsNotOnTheLists) {
  const std::string before = gbk::encode("[POS]\r\nPPort=LPT2\r\nCVProt=3\r\nCVModel=7\r\n");
  SettingsTill till(before);
  till.pos.ShowMouse(false);
  for (const bool confirmed : {false, true}) {
    Dialog dialog(till.pos);
    EXPECT_EQ(dialog.shown(), "LPT2|宽行|不打印|打印商品前7个字简称|无|3||否@cobPPort");
    Hands::typeNow("↑↑↑");  // stays on the first one
    dialog.stepDown({0, 1, 5, 3, 9, 0, 0, 1});
    EXPECT_EQ(dialog.shown(), "无|窄行|打印前提示默认'否'|打印商品全称+折扣|COM2|3||是@cmdTest");
    EXPECT_EQ(till.pos.gPosSet.PPort, "LPT2") << "before it is confirmed";
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(till.fileText(), before);
    confirmed ? dialog.click("cmdOk") : Hands::typeNow("⎋");
    EXPECT_FALSE(dialog.form.isVisible());
  }
  EXPECT_EQ(till.pos.gPosSet.PModel, 2);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_THAT(
      gbk::decode(till.fileText()),
      testing::StartsWith("[POS]\r\nPPort=\r\nCVProt=3\r\nCVModel=7\r\nPModel=2\r\n"
                          "printAmount=打印前提示默认'否'\r\nprintOption=打印商品全称+折扣\r\n"
                          "MBPort=COM2\r\nVMouse=1\r\n"));
}

TEST(frmPosSetTest, TheTestTriesWhatIsChosenAndSavesNothing) {
  PseudoTerminal display;
  SettingsTill till;
  const std::string file = "[Ports]\r\nLPT1=" + till.folder.file("printer") +
                           "\r\nLPT2=" + till.folder.file("drawer") + "\r\nCOM1=" + display.path() +
                           "\r\nCOM2=" + till.folder.file("missing/port") +
                           "\r\nUSB=" + till.folder.file("paper") + "\r\n[POS]\r\nPModel=2\r\n";
  std::ofstream(till.folder.file("Config.ini"), std::ios::binary) << file;
  std::filesystem::create_directory(till.folder.path() / "paper");
  till.pos.gPosSet.LoadSet(till.pos.configIni);
  till.pos.clock = [] { return DateTime{{2026, 11, 22}, 9, 5, 3}; };

  const std::string figure = "\x1Bs2\x1BQA8888.88\r";
  const std::string pulse("\x1Bp\0\x3C\xFF\r\n", 7);
  struct Case {
    std::initializer_list<int> steps;  // in the lists, from the first one
    std::string printed, kicked, displayed;
    const char* said;
  };
  const Case cases[] = {
      {{}, "", "", "", "小票打印机：没有设定端口，未测试"},
      {{1, 0, 0, 0, 2, 1},
       "-打印测试 2026-11-22 09:05:03--\r\n\r\n\r\n\r\n\r\n",
       pulse,
       figure,
       "钱箱：开箱信号已送到 LPT2"},
      {{0, 0, 0, 0, 3, 1}, "", "", figure + "\x02M", "钱箱：开箱信号已通过客显送到 COM1"},
      {{1, 0, 0, 0, 2, 2}, "打印测试", pulse, "", "客显：端口 COM2 打不开"},
      {{0, 0, 0, 0, 4, 2}, "", "", "", "钱箱：端口 COM2 打不开"},
  };
  for (const Case& each : cases) {
    std::filesystem::remove(till.folder.path() / "printer");
    std::filesystem::remove(till.folder.path() / "drawer");
    Dialog dialog(till.pos);
    dialog.stepDown(each.steps);
    dialog.test(each.said);
    EXPECT_THAT(gbk::decode(till.content("printer")), HasSubstr(each.printed));
    EXPECT_EQ(till.content("drawer"), each.kicked);
    EXPECT_EQ(display.received(), each.displayed);
  }
  Dialog dialog(till.pos);
  dialog.stepDown({3});
  dialog.test("测试行已送到系统打印机");
  EXPECT_EQ(till.fileText() + till.pos.gPosSet.PPort, file);
  EXPECT_FALSE(std::filesystem::is_empty(till.folder.path() / "paper"));
}

}  // namespace
