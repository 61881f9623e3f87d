#include "CheckoutFixture.h"

using testing::ElementsAre;

using Devices = CheckoutFixture;

TEST_F(Devices, displayTakesModeAndFigureAtThePortOfTheSetting) {
  showOn("COM1", 0);  // an unknown model is left alone
  showOn("3", 2);
  EXPECT_THAT(ports.opened, ElementsAre("COM3"));
  display.clientView(Currency::parse("12.5").value(), CustomerDisplay::kPrice);
  display.clientView(Currency::parse("-88.5").value(), CustomerDisplay::kChange);
  display.clientView(Currency(), 7);
  EXPECT_EQ(ports.shown, "\x1Bs1\x1BQA12.50\r\x1Bs4\x1BQA-88.50\r\x1BQA0.00\r");

  showOn("一号口");
  EXPECT_NE(screen.said(), "");
}

TEST_F(Devices, drawerOpensThroughItsPortOrTheDisplay) {
  const std::string pulse("\x1B\x70\x00\x3C\xFF\r\n", 7);
  showOn("COM1");
  pos.gPosSet.MBPort = "LPT1";
  drawer.OpenDrawer();
  EXPECT_EQ(fileBytes(folder.file("lpt1")), pulse);

  pos.gPosSet.MBPort = "COM1";
  drawer.OpenDrawer();
  EXPECT_EQ(ports.shown, "\x02M");
  EXPECT_EQ(fileBytes(folder.file("lpt1")), pulse);

  // The display is gone: the drawer is tried at its port.
  ports.serialBroken = true;
  pos.configIni.write("Ports", "COM1", folder.file("com1"));
  drawer.OpenDrawer();
  EXPECT_EQ(fileBytes(folder.file("com1")), pulse);
}
