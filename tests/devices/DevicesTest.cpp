#include "devices/Devices.h"

#include "ShopFixture.h"
#include "base/Gbk.h"
#include "base/Text.h"

class DevicesTest : public ShopFixture {
 protected:
  void plug(const char* port, const std::string& file) {
    EXPECT_TRUE(pos.configIni.write("Ports", port, folder.file(file)));
  }
  void open(const char* printer, const char* drawer, const char* display, int displayModel = 1) {
    settings.PPort = printer;
    settings.MBPort = drawer;
    settings.CVProt = display;
    settings.CVModel = displayModel;
    devices.open(settings);
  }
  /// What was told of printer and drawer, and of the display, since it was last asked for.
  std::string told() { return replaced(std::exchange(told_, {}), folder.path().string(), "~"); }
  std::string sent(const char* name) { return fileBytes(folder.file(name)); }

  const std::string pulse{"\x1B\x70\x00\x3C\xFF\r\n", 7};
  ClsPosSet settings;
  std::string told_;
  Devices devices{ports, [this](const std::string& text) { told_ += "机：" + text; },
                  [this](const std::string& text) { told_ += "屏：" + text; }};
};

TEST_F(DevicesTest, EachPrinterPrintsWhatItCan) {
  const struct {
    const char* port;
    ReceiptPrinter::Kind kind;
    const char* paper;               ///< of the line printer
    std::vector<std::string> pages;  ///< texts of the page printer's jobs
  } cases[] = {{"", ReceiptPrinter::Kind::kNone, "", {}},
               {"LPT1", ReceiptPrinter::Kind::kLine, "行 p\r\n表\r\n", {}},
               {"USB", ReceiptPrinter::Kind::kPage, "", {"表", "页"}}};
  settings.printAmount = "直接打印2联";
  for (const auto& each : cases) {
    open(each.port, "", "");
    EXPECT_EQ(devices.printer().kind(), each.kind);
    EXPECT_EQ(devices.printer().mode().copies, each.pages.size());
    EXPECT_TRUE(devices.print([](ReceiptPrinter& printer) {
      printer.printLines({"行\x1Bp"});  // no command to the printer
      printer.print(LineDocument{"", {"表"}});
      printer.print(PageDocument{"", 9, {{0, 0, "页"}}});
    }));
    std::vector<std::string> pages;
    for (const PageDocument& page : ports.pages) pages.push_back(page.texts.at(0).text);
    EXPECT_EQ(pages, each.pages);
    EXPECT_EQ(gbk::decode(sent("lpt1")), each.paper);
    std::filesystem::remove(folder.file("lpt1"));
  }
}

TEST_F(DevicesTest, AFailingPrinterIsToldOncePerOutage) {
  open("LPT1", "", "");
  const auto print = [](ReceiptPrinter& printer) { printer.printLines({"行"}); };
  for (int outage = 0; outage < 2; ++outage) {
    plug("LPT1", "");
    for (const char* message : {"机：端口 LPT1 打不开：~/ 是文件夹", ""}) {
      EXPECT_FALSE(devices.print(print));
      EXPECT_EQ(told(), message);
    }
    plug("LPT1", "lpt1");
    EXPECT_TRUE(devices.print(print));
  }
}

TEST_F(DevicesTest, TheDisplayTakesModeAndFigureAtThePortOfTheSetting) {
  open("", "", "COM1", 0);  // an unknown model is left alone
  open("", "", "3", 2);
  EXPECT_EQ(ports.opened, std::vector<std::string>{"COM3"});
  devices.display().clientView(Currency::parse("12.5").value(), CustomerDisplay::kPrice);
  devices.display().clientView(Currency::parse("-88.5").value(), CustomerDisplay::kChange);
  devices.display().clientView(Currency(), 7);
  EXPECT_EQ(ports.shown, "\x1Bs1\x1BQA12.50\r\x1Bs4\x1BQA-88.50\r\x1BQA0.00\r");
  ports.broken = true;
  for (int i = 0; i < 2; ++i) devices.display().clientView(Currency(), 1);
  EXPECT_EQ(told(), "屏：串口断开");
  open("", "", "一号口");
  EXPECT_EQ(told(), "屏：客户显示屏的端口“一号口”不是有效的端口号");
}

TEST_F(DevicesTest, TheDrawerOpensThroughItsPortOrTheDisplay) {
  for (const char* port : {"LPT1", "COM1", "COM1"}) {
    open("", port, "COM1");
    devices.drawer().OpenDrawer();
    ports.broken = std::string(port) == "COM1";
    plug("COM1", "com1");
  }
  EXPECT_EQ(sent("lpt1"), pulse);
  EXPECT_EQ(ports.shown, "\x02M");
  EXPECT_EQ(sent("com1"), pulse) << "the display is gone: the drawer is tried at its port";
}
