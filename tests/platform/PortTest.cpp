#include <gmock/gmock.h>
#include <sys/stat.h>

#include <QTest>
#include <filesystem>
#include <fstream>
#include <thread>

#include "PseudoTerminal.h"
#include "TemporaryFolder.h"
#include "platform/PortError.h"
#include "platform/PortFile.h"
#include "platform/SerialLine.h"

using std::chrono::milliseconds;
using testing::HasSubstr;

/// What sending says; "sent" when it could.
std::string outcomeOf(ByteSink&& port, const std::string& bytes = "x") try {
  port.send(bytes);
  return "sent";
} catch (const PortError& error) {
  return error.what();
}

class PortFileTest : public testing::Test {
 protected:
  PortFileTest() { mkfifo(fifo_.c_str(), 0600); }
  int openReader() const { return open(fifo_.c_str(), O_RDONLY | O_NONBLOCK); }

  TemporaryFolder folder_;
  std::string fifo_ = folder_.file("fifo");
};

TEST_F(PortFileTest, BytesReachAFileAndATerminalUnchanged) {
  std::string all = "\r\n\n";  // which terminals like to change
  for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
  PortFile file("LPT1", folder_.file("lpt1"));
  file.send(all);
  file.send("more");
  std::ifstream stream(folder_.file("lpt1"), std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), all + "more");
  PseudoTerminal terminal;
  PortFile("COM1", terminal.path()).send(all);
  EXPECT_EQ(terminal.received(), all);
}

TEST_F(PortFileTest, AReaderMayTakeItsTimeButNotLeave) {
  const std::string roll(300'000, '\xFF');  // more than a FIFO holds
  for (const auto& [wanted, said] : {std::pair(roll.size(), "sent"), {1000, "已退出"}}) {
    std::string arrived;
    std::jthread reading([&, wanted = wanted, reader = openReader()] {
      char part[1000];
      while (arrived.size() < wanted) {
        const ssize_t n = read(reader, part, sizeof part);
        if (n > 0) arrived.append(part, static_cast<std::size_t>(n));
      }
      close(reader);
    });
    EXPECT_THAT(outcomeOf(PortFile("LPT1", fifo_, milliseconds(20'000)), roll), HasSubstr(said));
    reading.join();
    EXPECT_EQ(arrived, roll.substr(0, arrived.size()));
  }
}

TEST_F(PortFileTest, SaysWhyItFailed) {
  const std::string device = "/dev/till-no-such-device";
  const std::pair<std::string, const char*> cases[] = {{device, "没有这个设备"},
                                                       {folder_.file("no/such"), "没有这个设备"},
                                                       {folder_.path(), "是文件夹"},
                                                       {fifo_, "没有程序在接收"},
                                                       {"/dev/full", "空间已满"}};
  for (const auto& [path, why] : cases)
    EXPECT_THAT(outcomeOf(PortFile("LPT2", path)), AllOf(HasSubstr("LPT2"), HasSubstr(why)));
  EXPECT_FALSE(std::filesystem::exists(device)) << "a file in a device's place swallows receipts";
}

TEST_F(PortFileTest, StuckPortCostsNoMoreThanItsLimit) {
  const int reader = openReader();
  const PseudoTerminal terminal;
  for (const std::string& path : {fifo_, terminal.path()}) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THAT(outcomeOf(PortFile("LPT1", path, milliseconds(100)), std::string(1'000'000, 'x')),
                HasSubstr("太久"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, milliseconds(600));
  }
  close(reader);
}

class SerialLineTest : public testing::Test {
 protected:
  /// Whether what arrives comes to be like that.
  bool arrives(const std::function<bool(const std::string&)>& isIt) {
    return QTest::qWaitFor([&] { return isIt(arrived += terminal.received()); });
  }
  PseudoTerminal terminal;
  std::string arrived;
  SerialLine line{"COM1", terminal.path()};
};

TEST_F(SerialLineTest, SendsUnchangedAt2400) {
  const std::string bytes("\x1BQA-88.50\r\n\x02M\x00\xFF", 15);
  line.send(bytes);
  EXPECT_TRUE(arrives([&](auto& all) { return all == bytes; }));
  EXPECT_EQ(terminal.speed(), static_cast<speed_t>(B2400));
}

TEST_F(SerialLineTest, StuckLineNeitherWaitsNorGathers) {
  // Far more than a pseudo terminal holds, in pieces as the display gets them.
  const std::string piece(100, 'x');
  for (int i = 0; i < 10'000; ++i) line.send(piece);
  const std::size_t held = terminal.received().size();
  EXPECT_LT(held, 1'000'000U);
  line.send("LAST");
  EXPECT_TRUE(arrives([](auto& all) { return all.ends_with("LAST"); }));
  EXPECT_LE(arrived.size(), 512U);
  EXPECT_EQ((held + arrived.size()) % piece.size(), 4U) << "a command was cut";
}

TEST_F(SerialLineTest, SaysThatTheLineIsMissingOrGone) {
  for (const char* path : {"/dev/till-no-such-line", "/dev/null"})
    EXPECT_THAT([&] { SerialLine("COM3", path); },
                testing::ThrowsMessage<PortError>(HasSubstr("端口 COM3 打不开：")));
  terminal.unplug();
  const auto refuses = [&] { return outcomeOf(std::move(line)).starts_with("端口 COM1 "); };
  EXPECT_TRUE(QTest::qWaitFor(refuses));
  EXPECT_TRUE(refuses()) << "a line that is gone stays gone";
}
