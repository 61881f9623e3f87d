#include <gmock/gmock.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <fstream>

#include "TemporaryFolder.h"
#include "app/ClsPosSet.h"
#include "app/KeyBoard.h"
#include "app/Ports.h"
#include "platform/IniFile.h"

class SettingsTest : public testing::Test {
 protected:
  const IniFile& fileWith(const std::string& text) const {
    std::ofstream(folder_.file("Config.ini")) << text;
    return file_;
  }
  TemporaryFolder folder_;
  IniFile file_{folder_.file("Config.ini")};
};

TEST_F(SettingsTest, NumbersAreDefaultWhenAbsentZeroWhenEmptyDefaultWhenNone) {
  const std::pair<const char*, std::tuple<int, int, int>> cases[] = {
      {"", {1, 0, 27}},
      {"[pos]\nPMODEL= 2 \n[Color]\nC1=-1\n[KeyBoard]\nEsc=87\n", {2, -1, 87}},
      {"[POS]\nPModel=\n[Color]\nC1=  \n[KeyBoard]\nEsc=\n", {0, 0, 0}},
      {"[POS]\nPModel=abc\n[Color]\nC1=#fff\n[KeyBoard]\nEsc=99999999999\n", {1, 0, 27}}};
  for (const auto& [text, numbers] : cases) {
    ClsPosSet settings;
    settings.LoadSet(fileWith(text));
    KeyBoard keys;
    keys.LoadSet(file_);
    EXPECT_EQ(std::tuple(settings.PModel, settings.C1, keys.mEsc), numbers) << text;
  }
}

TEST_F(SettingsTest, QuickKeysEndAtTheFirstGapAndAShorterListLeavesEmptyOnesBehind) {
  KeyBoard keys;
  keys.LoadSet(fileWith(
      "[QK]\n0QK=112;6901234567892\n1QK=abc\n2QK=x;1\n3QK=65;\n4QK= 66;a;b \n5QK=\n6QK=67;9\n"));
  ASSERT_EQ(keys.QK.size(), 3U);
  EXPECT_EQ(keys.QK[0].QK_int, 112);
  EXPECT_EQ(keys.QK[0].QK_Bm + "|" + keys.QK[1].QK_Bm + "|" + keys.QK[2].QK_Bm,
            "6901234567892||a;b");
  keys.ReSetQk();
  keys.QK = {{70, "7"}, {71, "8"}};
  const int watch = inotify_init1(IN_NONBLOCK);
  inotify_add_watch(watch, folder_.path().c_str(), IN_MOVED_TO);
  keys.SaveSet(file_);
  alignas(inotify_event) std::array<char, 4096> events{};
  const ssize_t read = ::read(watch, events.data(), events.size());
  const auto* first = reinterpret_cast<const inotify_event*>(events.data());
  EXPECT_EQ(read, static_cast<ssize_t>(sizeof *first + first->len)) << "not saved in one step";
  close(watch);
  EXPECT_EQ(file_.read("QK", "1QK"), "71;8");
  for (const char* gone : {"2QK", "3QK", "4QK"}) EXPECT_EQ(file_.read("QK", gone), "") << gone;
}

TEST_F(SettingsTest, PortsAreTheMachinesUnlessTheFileNamesAnother) {
  const Ports ports(fileWith("[Ports]\nLPT1=/tmp/printer\nCOM1=\ncom3=/tmp/pty\n"));
  EXPECT_EQ(ports.path("LPT1"), "/tmp/printer");
  EXPECT_EQ(ports.path("COM1"), "/dev/ttyS0");
  EXPECT_EQ(ports.path("COM3"), "/tmp/pty");
}
