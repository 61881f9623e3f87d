#include "platform/PortFile.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "PseudoTerminal.h"
#include "TemporaryFolder.h"
#include "platform/PortError.h"

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;
using testing::AllOf;
using testing::HasSubstr;

/// Every byte there is, with the drawer's 0xFF and the line ends that terminals like to change.
std::string allBytes() {
  std::string bytes("\x1B\x70\x00\x3C\xFF\r\n\n\x11\x13", 10);
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  return bytes;
}

std::string failureOf(PortFile port, const std::string& bytes) {
  try {
    port.send(bytes);
  } catch (const PortError& error) {
    return error.what();
  }
  return "sent";
}

TEST(PortFileTest, BytesReachEveryKindOfPortUnchanged) {
  const TemporaryFolder folder;
  PortFile file("LPT1", folder.file("lpt1"));
  file.send(allBytes());
  file.send("more");
  std::ifstream stream(folder.file("lpt1"), std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), allBytes() + "more");

  PseudoTerminal terminal;
  PortFile("COM1", terminal.path()).send(allBytes());
  EXPECT_EQ(terminal.received(), allBytes());

  // More than a FIFO holds, to a reader that takes its time.
  const std::string path = folder.file("fifo");
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  const int reader = open(path.c_str(), O_RDONLY | O_NONBLOCK);
  std::string arrived;
  const std::string roll(300'000, '\xFF');
  std::jthread reading([&] {
    char part[1000];
    while (arrived.size() < roll.size()) {
      const ssize_t n = read(reader, part, sizeof part);
      if (n > 0) arrived.append(part, static_cast<std::size_t>(n));
    }
  });
  PortFile("LPT1", path, milliseconds(20'000)).send(roll);
  reading.join();
  EXPECT_EQ(arrived, roll);
  close(reader);
}

TEST(PortFileTest, SaysWhyItFailed) {
  const TemporaryFolder folder;
  ASSERT_EQ(mkfifo(folder.file("nobody").c_str(), 0600), 0);
  const std::string device = "/dev/till-no-such-device";
  const std::pair<std::string, std::string> cases[] = {{device, "没有这个设备"},
                                                       {folder.file("no/such"), "没有这个设备"},
                                                       {folder.path().string(), "是文件夹"},
                                                       {folder.file("nobody"), "没有程序在接收"},
                                                       {"/dev/full", "空间已满"}};
  for (const auto& [path, reason] : cases) {
    EXPECT_THAT(failureOf(PortFile("LPT2", path), "x"),
                AllOf(HasSubstr("LPT2"), HasSubstr(reason)));
  }
  EXPECT_FALSE(std::filesystem::exists(device)) << "a file in a device's place swallows receipts";
}

TEST(PortFileTest, StuckPortCostsNoMoreThanItsLimit) {
  const TemporaryFolder folder;
  ASSERT_EQ(mkfifo(folder.file("fifo").c_str(), 0600), 0);
  const int reader = open(folder.file("fifo").c_str(), O_RDONLY | O_NONBLOCK);
  const PseudoTerminal terminal;
  for (const std::string& path : {folder.file("fifo"), terminal.path()}) {
    const auto start = steady_clock::now();
    const PortFile port("LPT1", path, milliseconds(100));
    EXPECT_THAT(failureOf(port, std::string(1'000'000, 'x')), HasSubstr("太久"));
    const auto took = steady_clock::now() - start;
    EXPECT_GE(took, milliseconds(100));
    EXPECT_LT(took, milliseconds(600));
  }
  close(reader);
}

TEST(PortFileTest, ReaderThatLeavesDoesNotEndTheProgram) {
  const TemporaryFolder folder;
  ASSERT_EQ(mkfifo(folder.file("fifo").c_str(), 0600), 0);
  const int reader = open(folder.file("fifo").c_str(), O_RDONLY | O_NONBLOCK);
  std::jthread leaving([reader] {
    char part[1000];
    while (read(reader, part, sizeof part) <= 0) std::this_thread::yield();
    close(reader);
  });
  EXPECT_THAT(failureOf(PortFile("LPT1", folder.file("fifo")), std::string(1'000'000, 'x')),
              HasSubstr("已退出"));
}

}  // namespace
