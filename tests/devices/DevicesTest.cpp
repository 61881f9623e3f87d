#include "devices/Devices.h"

#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

#include "RecordingPorts.h"
#include "TemporaryFolder.h"
#include "app/ClsPosSet.h"
#include "base/Gbk.h"
#include "platform/IniFile.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class DevicesTest : public testing::Test {
 protected:
  DevicesTest() { plug("LPT1", "lpt1"); }

  void plug(const char* port, const std::string& file) {
    EXPECT_TRUE(configIni.write("Ports", port, folder.file(file)));
  }
  void open(const char* printer, const char* drawer, const char* display, int displayModel = 1) {
    settings.PPort = printer;
    settings.MBPort = drawer;
    settings.CVProt = display;
    settings.CVModel = displayModel;
    devices.open(settings);
  }
  std::string bytes(const char* name) const {
    std::ostringstream content;
    content << std::ifstream(folder.file(name), std::ios::binary).rdbuf();
    return content.str();
  }

  const std::string pulse{"\x1B\x70\x00\x3C\xFF\r\n", 7};
  TemporaryFolder folder;
  IniFile configIni{folder.path() / "Config.ini"};
  RecordingPorts ports{configIni};
  ClsPosSet settings;
  std::vector<std::string> told, toldOfDisplay;
  Devices devices{ports, [this](const std::string& text) { told.push_back(text); },
                  [this](const std::string& text) { toldOfDisplay.push_back(text); }};
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
    EXPECT_EQ(gbk::decode(bytes("lpt1")), each.paper);
    std::filesystem::remove(folder.file("lpt1"));
  }
}

TEST_F(DevicesTest, AFailingPrinterIsToldOncePerOutage) {
  open("LPT1", "", "");
  const auto print = [](ReceiptPrinter& printer) { printer.printLines({"行"}); };
  for (const std::size_t outage : {1U, 2U}) {
    plug("LPT1", "");
    for (int i = 0; i < 2; ++i) EXPECT_FALSE(devices.print(print));
    EXPECT_THAT(told, SizeIs(outage));
    plug("LPT1", "lpt1");
    EXPECT_TRUE(devices.print(print));
  }
}

TEST_F(DevicesTest, TheDisplayTakesModeAndFigureAtThePortOfTheSetting) {
  open("", "", "COM1", 0);  // an unknown model is left alone
  open("", "", "3", 2);
  EXPECT_THAT(ports.opened, ElementsAre("COM3"));
  devices.display().clientView(Currency::parse("12.5").value(), CustomerDisplay::kPrice);
  devices.display().clientView(Currency::parse("-88.5").value(), CustomerDisplay::kChange);
  devices.display().clientView(Currency(), 7);
  EXPECT_EQ(ports.shown, "\x1Bs1\x1BQA12.50\r\x1Bs4\x1BQA-88.50\r\x1BQA0.00\r");
  ports.broken = true;
  for (int i = 0; i < 2; ++i) devices.display().clientView(Currency(), 1);
  EXPECT_THAT(toldOfDisplay, SizeIs(1));
  open("", "", "一号口");
  EXPECT_THAT(toldOfDisplay, SizeIs(2));
  EXPECT_THAT(told, IsEmpty());
}

TEST_F(DevicesTest, TheDrawerOpensThroughItsPortOrTheDisplay) {
  open("", "LPT1", "COM1");
  devices.drawer().OpenDrawer();
  EXPECT_EQ(bytes("lpt1"), pulse);

  open("", "COM1", "COM1");
  devices.drawer().OpenDrawer();
  EXPECT_EQ(ports.shown, "\x02M");
  EXPECT_EQ(bytes("lpt1"), pulse);

  // The display is gone: the drawer is tried at its port.
  ports.broken = true;
  plug("COM1", "com1");
  devices.drawer().OpenDrawer();
  EXPECT_EQ(bytes("com1"), pulse);
}

}  // namespace
