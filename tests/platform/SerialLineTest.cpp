#include "platform/SerialLine.h"

#include <gmock/gmock.h>
#include <termios.h>

#include <QTest>

#include "PseudoTerminal.h"
#include "platform/PortError.h"

namespace {

TEST(SerialLineTest, SendsUnchangedAt2400) {
  PseudoTerminal terminal;
  SerialLine line("COM1", terminal.path());
  const std::string bytes("\x1BQA-88.50\r\n\x02M\x00\xFF", 15);
  line.send(bytes);
  std::string arrived;
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return (arrived += terminal.received()).size() >= bytes.size(); }));
  EXPECT_EQ(arrived, bytes);

  const int device = open(terminal.path().c_str(), O_RDWR | O_NOCTTY);
  termios settings{};
  if (device >= 0 && tcgetattr(device, &settings) == 0) {  // a held line refuses others but root
    EXPECT_EQ(cfgetospeed(&settings), static_cast<speed_t>(B2400));
    close(device);
  }
}

TEST(SerialLineTest, StuckLineNeitherWaitsNorGathers) {
  PseudoTerminal terminal;
  SerialLine line("COM1", terminal.path());
  // Far more than a pseudo terminal holds, in pieces as the display gets them.
  const std::string piece(100, 'x');
  for (int i = 0; i < 10'000; ++i) line.send(piece);
  std::string arrived = terminal.received();
  EXPECT_LT(arrived.size(), 1'000'000U);
  // What waited follows when the line takes bytes again, and then new ones do.
  const std::string last = "LAST";
  const auto lastArrived = [&] {
    arrived += terminal.received();
    return arrived.ends_with(last);
  };
  EXPECT_TRUE(QTest::qWaitFor([&] { return (arrived += terminal.received()).size() % 100 == 0; }));
  line.send(last);
  EXPECT_TRUE(QTest::qWaitFor(lastArrived));
}

TEST(SerialLineTest, SaysThatTheLineIsMissingOrGone) {
  EXPECT_THROW(SerialLine("COM3", "/dev/till-no-such-line"), PortError);
  EXPECT_THROW(SerialLine("COM3", "/dev/null"), PortError);

  PseudoTerminal terminal;
  SerialLine line("COM1", terminal.path());
  terminal.unplug();
  const auto refuses = [&line] {
    try {
      line.send("x");
    } catch (const PortError& error) {
      EXPECT_THAT(error.what(), testing::HasSubstr("COM1"));
      return true;
    }
    return false;
  };
  EXPECT_TRUE(QTest::qWaitFor(refuses));
  EXPECT_TRUE(refuses()) << "a line that is gone stays gone";
}

}  // namespace
