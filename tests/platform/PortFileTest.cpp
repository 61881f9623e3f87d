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
using testing::AllOf;
using testing::HasSubstr;

/// Every byte there is, and the line ends that terminals like to change.
std::string allBytes() {
  std::string bytes = "\r\n\n";
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

class PortFileTest : public testing::Test {
 protected:
  PortFileTest() { mkfifo(fifo_.c_str(), 0600); }
  int openReader() const { return open(fifo_.c_str(), O_RDONLY | O_NONBLOCK); }

  TemporaryFolder folder_;
  std::string fifo_ = folder_.file("fifo");
};

TEST_F(PortFileTest, BytesReachAFileAndATerminalUnchanged) {
  PortFile file("LPT1", folder_.file("lpt1"));
  file.send(allBytes());
  file.send("more");
  std::ifstream stream(folder_.file("lpt1"), std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), allBytes() + "more");
  PseudoTerminal terminal;
  PortFile("COM1", terminal.path()).send(allBytes());
  EXPECT_EQ(terminal.received(), allBytes());
}

TEST_F(PortFileTest, AReaderMayTakeItsTimeButNotLeave) {
  for (const std::size_t wanted : {300'000U, 1000U}) {
    std::string arrived;
    std::jthread reading([&, reader = openReader()] {
      char part[1000];
      while (arrived.size() < wanted) {
        const ssize_t n = read(reader, part, sizeof part);
        if (n > 0) arrived.append(part, static_cast<std::size_t>(n));
      }
      close(reader);
    });
    const std::string roll(300'000, '\xFF');  // more than a FIFO holds
    const std::string failure = failureOf(PortFile("LPT1", fifo_, milliseconds(20'000)), roll);
    reading.join();
    EXPECT_THAT(failure, HasSubstr(wanted == roll.size() ? "sent" : "已退出"));
    EXPECT_EQ(arrived, roll.substr(0, arrived.size()));
  }
}

TEST_F(PortFileTest, SaysWhyItFailed) {
  const std::string device = "/dev/till-no-such-device";
  const std::pair<std::string, std::string> cases[] = {{device, "没有这个设备"},
                                                       {folder_.file("no/such"), "没有这个设备"},
                                                       {folder_.path().string(), "是文件夹"},
                                                       {fifo_, "没有程序在接收"},
                                                       {"/dev/full", "空间已满"}};
  for (const auto& [path, reason] : cases) {
    EXPECT_THAT(failureOf(PortFile("LPT2", path), "x"),
                AllOf(HasSubstr("LPT2"), HasSubstr(reason)));
  }
  EXPECT_FALSE(std::filesystem::exists(device)) << "a file in a device's place swallows receipts";
}

TEST_F(PortFileTest, StuckPortCostsNoMoreThanItsLimit) {
  const int reader = openReader();
  const PseudoTerminal terminal;
  for (const std::string& path : {fifo_, terminal.path()}) {
    const auto start = std::chrono::steady_clock::now();
    const PortFile port("LPT1", path, milliseconds(100));
    EXPECT_THAT(failureOf(port, std::string(1'000'000, 'x')), HasSubstr("太久"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, milliseconds(600));
  }
  close(reader);
}

}  // namespace
