#include <gmock/gmock.h>

#include <fstream>

#include "TemporaryFolder.h"
#include "app/ClsPosSet.h"
#include "app/KeyBoard.h"
#include "app/Ports.h"
#include "platform/IniFile.h"

namespace {

class SettingsTest : public testing::Test {
 protected:
  IniFile fileWith(const std::string& text) const {
    std::ofstream(folder_.file("Config.ini")) << text;
    return IniFile(folder_.file("Config.ini"));
  }
  std::string bytes() const {
    std::ifstream file(folder_.file("Config.ini"));
    return {std::istreambuf_iterator<char>(file), {}};
  }
  TemporaryFolder folder_;
};

TEST_F(SettingsTest, NumbersAreDefaultWhenAbsentZeroWhenEmptyDefaultWhenNone) {
  struct Case {
    const char* text;
    int pModel, cvModel, vMouse, c1, esc, up;
  };
  const Case cases[] = {
      {"", 1, 1, 0, 0, 27, 38},
      {"[pos]\nPMODEL=2\nCVModel= 2 \nVMouse=1\n[Color]\nC1=16777215\n[KeyBoard]\nUp=87\n", 2, 2, 1,
       16777215, 27, 87},
      {"[POS]\nPModel=\nCVModel=  \nVMouse=\n[Color]\nC1=\n[KeyBoard]\nEsc=\nUp=\n", 0, 0, 0, 0, 0,
       0},
      {"[POS]\nPModel=abc\nCVModel=99999999999\nVMouse=x1\n[Color]\nC1=#fff\n[KeyBoard]\nEsc=Esc\n",
       1, 1, 0, 0, 27, 38},
      {"[Color]\nC1=-1\n[KeyBoard]\nUp=38\n[KeyBoard]\nUp=87\n", 1, 1, 0, -1, 27, 38},
  };
  for (const Case& c : cases) {
    const IniFile file = fileWith(c.text);
    ClsPosSet settings;
    settings.LoadSet(file);
    KeyBoard keys;
    keys.LoadSet(file);
    EXPECT_EQ(settings.PModel, c.pModel) << c.text;
    EXPECT_EQ(settings.CVModel, c.cvModel) << c.text;
    EXPECT_EQ(settings.VMouse, c.vMouse) << c.text;
    EXPECT_EQ(settings.C1, c.c1) << c.text;
    EXPECT_EQ(keys.mEsc, c.esc) << c.text;
    EXPECT_EQ(keys.mUp, c.up) << c.text;
  }
}

TEST_F(SettingsTest, WhatIsSavedIsLoadedAgain) {
  const IniFile file = fileWith("; mine\n[POS]\nPPort=USB\n[Other]\nkept=1\n");
  ClsPosSet saved;
  saved.printAmount = "打印前提示默认'是'";
  saved.MBPort = "LPT2";
  saved.PModel = 2;
  saved.C6 = -5;
  saved.SaveSet(file);
  ClsPosSet loaded;
  loaded.LoadSet(file);
  EXPECT_EQ(loaded.PPort, "");
  EXPECT_EQ(loaded.printAmount, "打印前提示默认'是'");
  EXPECT_EQ(loaded.MBPort, "LPT2");
  EXPECT_EQ(loaded.PModel, 2);
  EXPECT_EQ(loaded.C6, -5);
  EXPECT_THAT(bytes(), testing::AllOf(testing::HasSubstr("; mine\n"), testing::HasSubstr("PPort="),
                                      testing::HasSubstr("kept=1")));
}

TEST_F(SettingsTest, QuickKeysEndAtTheFirstGapAndBrokenOnesAreLeftOut) {
  const IniFile file = fileWith(
      "[QK]\n0QK=112;6901234567892\n1QK=abc\n2QK=x;1\n3QK=65;\n4QK= 66;a;b \n5QK=\n6QK=67;9\n");
  KeyBoard keys;
  keys.LoadSet(file);
  ASSERT_EQ(keys.QK.size(), 3U);
  EXPECT_EQ(keys.QK[0].QK_int, 112);
  EXPECT_EQ(keys.QK[0].QK_Bm, "6901234567892");
  EXPECT_EQ(keys.QK[1].QK_int, 65);
  EXPECT_EQ(keys.QK[1].QK_Bm, "");
  EXPECT_EQ(keys.QK[2].QK_Bm, "a;b");
}

TEST_F(SettingsTest, AShorterQuickKeyListLeavesEmptyKeysBehind) {
  const IniFile file = fileWith("[QK]\n0QK=65;1\n1QK=66;2\n2QK=67;3\n3QK=68;4\n");
  KeyBoard keys;
  keys.LoadSet(file);
  keys.ReSetQk();
  keys.QK = {{70, "7"}, {71, "8"}};
  keys.mF12 = 0;
  keys.SaveSet(file);
  EXPECT_EQ(file.read("QK", "1QK"), "71;8");
  EXPECT_EQ(file.read("QK", "2QK"), "");
  EXPECT_EQ(file.read("QK", "3QK"), "");
  KeyBoard again;
  again.LoadSet(file);
  EXPECT_EQ(again.QK.size(), 2U);
  EXPECT_EQ(again.mF12, 0);
}

TEST_F(SettingsTest, PortsAreTheMachinesUnlessTheFileNamesAnother) {
  const IniFile file = fileWith("[Ports]\nLPT1=/tmp/printer\nCOM1=\ncom3=/tmp/pty\n");
  const Ports ports(file);
  EXPECT_EQ(ports.path("LPT1"), "/tmp/printer");
  EXPECT_THAT(ports.path("LPT2"), testing::AnyOf("/dev/usb/lp1", "/dev/lp1"));
  EXPECT_EQ(ports.path("COM1"), "/dev/ttyS0");
  EXPECT_EQ(ports.path("COM3"), "/tmp/pty");
  EXPECT_EQ(ports.path("COM9"), "/dev/ttyS8");
  EXPECT_EQ(ports.path("LPT3"), "LPT3");
}

}  // namespace
