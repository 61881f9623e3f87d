#include "platform/SerialLine.h"

#include <gmock/gmock.h>

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
  EXPECT_TRUE(QTest::qWaitFor([&] { return (arrived += terminal.received()) == bytes; }));
  EXPECT_EQ(terminal.speed(), static_cast<speed_t>(B2400));
}

TEST(SerialLineTest, StuckLineNeitherWaitsNorGathers) {
  PseudoTerminal terminal;
  SerialLine line("COM1", terminal.path());
  // Far more than a pseudo terminal holds, in pieces as the display gets them.
  const std::string piece(100, 'x');
  for (int i = 0; i < 10'000; ++i) line.send(piece);
  const std::size_t held = terminal.received().size();
  EXPECT_LT(held, 1'000'000U);
  line.send("LAST");
  std::string waited;
  EXPECT_TRUE(QTest::qWaitFor([&] { return (waited += terminal.received()).ends_with("LAST"); }));
  EXPECT_LE(waited.size(), 512U);
  EXPECT_EQ((held + waited.size()) % piece.size(), 4U) << "a command was cut";
}

TEST(SerialLineTest, SaysThatTheLineIsMissingOrGone) {
  for (const char* path : {"/dev/till-no-such-line", "/dev/null"}) {
    EXPECT_THAT([&] { SerialLine("COM3", path); },
                testing::ThrowsMessage<PortError>(testing::HasSubstr("端口 COM3 打不开：")));
  }
  PseudoTerminal terminal;
  SerialLine line("COM1", terminal.path());
  terminal.unplug();
  const auto refuses = [&line] {
    try {
      line.send("x");
      return false;
    } catch (const PortError&) {
      return true;
    }
  };
  EXPECT_TRUE(QTest::qWaitFor(refuses));
  EXPECT_TRUE(refuses()) << "a line that is gone stays gone";
}

}  // namespace
