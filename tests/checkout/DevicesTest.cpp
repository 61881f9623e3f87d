#include "SaleFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Devices : public SaleFixture {
 protected:
  void configure(const char* displayPort, const char* drawerPort, int model = 1) {
    pos.gPosSet.CVProt = displayPort;
    pos.gPosSet.CVModel = model;
    pos.gPosSet.MBPort = drawerPort;
    state.hasDisplay = true;
    state.hasDrawer = !pos.gPosSet.MBPort.empty();
    display.OpenDisplayPort();
  }
};

TEST_F(Devices, displayTakesModeAndFigureAtThePortOfTheSetting) {
  configure("3", "", 2);
  EXPECT_THAT(ports.opened, ElementsAre("COM3"));
  display.clientView(Currency::parse("12.5").value(), CustomerDisplay::kPrice);
  display.clientView(Currency::parse("-88.5").value(), CustomerDisplay::kChange);
  display.clientView(Currency(), 7);
  EXPECT_EQ(ports.shown, "\x1Bs1\x1BQA12.50\r\x1Bs4\x1BQA-88.50\r\x1BQA0.00\r");
}

TEST_F(Devices, displayOfUnknownModelIsLeftAlone) {
  configure("COM1", "", 0);
  display.clientView(Currency::fromYuan(1), CustomerDisplay::kTotal);
  EXPECT_THAT(ports.opened, IsEmpty());
  EXPECT_EQ(ports.shown, "");
}

TEST_F(Devices, brokenDisplayIsSaidOnceAndStaysOff) {
  ports.serialBroken = true;
  configure("COM1", "");
  EXPECT_FALSE(state.hasDisplay);
  ports.serialBroken = false;
  display.clientView(Currency::fromYuan(1), CustomerDisplay::kTotal);
  EXPECT_EQ(ports.shown, "");
  EXPECT_THAT(screen.messages, SizeIs(1));

  configure("COM1", "");
  ports.serialBroken = true;
  for (int i = 0; i < 3; ++i) display.clientView(Currency(), CustomerDisplay::kTotal);
  EXPECT_THAT(screen.messages, SizeIs(2));

  configure("一号口", "");
  EXPECT_FALSE(state.hasDisplay);
}

TEST_F(Devices, drawerOpensThroughItsPortOrTheDisplay) {
  const std::string pulse("\x1B\x70\x00\x3C\xFF\r\n", 7);
  configure("COM1", "LPT1");
  drawer.OpenDrawer();
  EXPECT_EQ(fileBytes(folder.file("lpt1")), pulse);

  configure("COM1", "COM1");
  drawer.OpenDrawer();
  EXPECT_EQ(ports.shown, "\x02M");
  EXPECT_EQ(fileBytes(folder.file("lpt1")), pulse);

  // The display is gone: the drawer is tried at its port, here a folder that cannot be written.
  ports.serialBroken = true;
  pos.configIni.write("Ports", "COM1", folder.path().string());
  drawer.OpenDrawer();
  drawer.OpenDrawer();
  EXPECT_THAT(screen.messages, SizeIs(2));

  state.hasDrawer = false;
  configure("COM1", "");
  drawer.OpenDrawer();
  EXPECT_EQ(fileBytes(folder.file("lpt1")), pulse);
}
