#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <fstream>
#include <iostream>

#include "FaultyTill.h"
#include "LongRun.h"
#include "platform/PseudoTerminal.h"

constexpr qint64 kLongestKeyPressMs = 2500;

/// What stands behind a port name.
enum Device { kMissing, kFull, kUnreadFifo, kClosedTerminal, kStoppedTerminal, kFile, kDevices };
constexpr const char* kNames[kDevices] = {"missing",
                                          "/dev/full",
                                          "a FIFO that nobody reads",
                                          "a terminal closed in the middle",
                                          "a terminal that takes nothing more",
                                          "a file"};

class DeviceFaultTest : public ExaminedTill {
 protected:
  DeviceFaultTest() {
    ports.isReal = true;
    std::filesystem::create_directories(folder.path() / "pdf");
  }
  void TearDown() override { disconnect(); }

  /// The path of such a device. FIFO and stopped terminal have a reader that never reads, and are
  /// full to the brim.
  std::string make(Device device, const std::string& port) {
    const std::string path = folder.file("device-" + port);
    switch (device) {
      case kMissing:
        return "/dev/no-such-device";
      case kFull:
        return "/dev/full";
      case kUnreadFifo:
        std::filesystem::remove(path);
        mkfifo(path.c_str(), 0600);
        fill(path, O_RDWR);
        return path;
      case kClosedTerminal:
        return closing.emplace_back(std::make_unique<PseudoTerminal>())->path();
      case kStoppedTerminal:
        return stopped.emplace_back(std::make_unique<PseudoTerminal>())->path();
      default:
        return folder.file("file-" + port);
    }
  }
  void fill(const std::string& path, int way) {
    fillers.push_back(::open(path.c_str(), way | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    const std::string block(256, 'x');
    while (::write(fillers.back(), block.data(), block.size()) > 0) continue;
  }
  void connect(Device printer, Device kick, Device shown) {
    pos.gPosSet = {};
    pos.gPosSet.PPort = "LPT1";
    pos.gPosSet.MBPort = "LPT2";
    pos.gPosSet.CVProt = "COM1";
    EXPECT_TRUE(pos.configIni.write({{"Ports", "LPT1", make(printer, "LPT1")},
                                     {"Ports", "LPT2", make(kick, "LPT2")},
                                     {"Ports", "COM1", make(shown, "COM1")}}));
  }
  void printPages(const std::string& path, const char* amount) {
    pos.gPosSet = {};
    pos.gPosSet.PPort = "USB";
    pos.gPosSet.printAmount = amount;
    EXPECT_TRUE(pos.configIni.write("Ports", "USB", path));
  }
  void disconnect() {
    for (const int side : fillers) ::close(side);
    fillers.clear();
    closing.clear();
    stopped.clear();
    till.messages.clear();
  }

  /// A key press, or a confirmation in the settlement dialog that one has opened.
  void timed(const std::function<void()>& work) {
    for (const auto& terminal : stopped) fill(terminal->path(), O_WRONLY);
    QElapsedTimer clock;
    clock.start();
    work();
    longest = std::max(longest, clock.elapsed() - std::exchange(inDialog, 0));
    ++presses;
  }
  void settle() {
    till.pay = [this](Settlement& payment) {
      QElapsedTimer clock;
      clock.start();
      timed([&payment] { payment.confirmCash("100"); });
      inDialog = clock.elapsed();
    };
    timed([this] { enter(""); });
  }
  /// Two bills. Terminals that close do so in the middle of the first.
  void sellTwice() {
    const int billsBefore = std::stoi(stored("count(*) as v from sell where state = 1"));
    timed([this] { open(); });
    timed([this] { enter(kWater); });
    timed([this] { enter(kCrate); });
    for (const auto& terminal : closing) terminal->unplug();
    settle();
    timed([this] { enter(kWater); });
    timed([this] { press(121); });  // F10 opens the drawer
    settle();
    timed([this] { press(kEsc); });
    EXPECT_EQ(stored("count(*) as v from sell where state = 1"), std::to_string(billsBefore + 2));
    EXPECT_EQ(bookFaults(), "");
    EXPECT_LT(longest, kLongestKeyPressMs);
  }
  /// The devices are mended: outages are over, and the next ones are told again.
  void mend() {
    disconnect();
    connect(kFile, kFile, kClosedTerminal);
    for (const bool onPages : {false, true}) {
      if (onPages) printPages(folder.file("pdf"), "直接打印1联");
      open();
      enter(kWater);
      settle();
      press(kEsc);
    }
    disconnect();
  }

  qint64 longest = 0, inDialog = 0;
  int presses = 0;
  std::vector<int> fillers;
  std::vector<std::unique_ptr<PseudoTerminal>> closing, stopped;
};

TEST_F(DeviceFaultTest, NoDeviceHoldsAKeyPressOrLosesABill) {
  int combinations = 0;
  for (int each = 0; each < kDevices * kDevices * kDevices; ++each) {
    const auto printer = static_cast<Device>(each / kDevices / kDevices);
    const auto kick = static_cast<Device>(each / kDevices % kDevices);
    const auto shown = static_cast<Device>(each % kDevices);
    // Each of the two devices that block costs seconds of this test.
    const bool alike =
        printer == kick && kick == shown && printer != kUnreadFifo && printer != kStoppedTerminal;
    const bool allBlock =
        printer == kUnreadFifo && kick == kStoppedTerminal && shown == kStoppedTerminal;
    if (!longRun && !alike && !allBlock) continue;
    SCOPED_TRACE(std::string("printer ") + kNames[printer] + ", drawer " + kNames[kick] +
                 ", display " + kNames[shown]);
    connect(printer, kick, shown);
    sellTwice();
    const bool allWork = printer == kFile && kick == kFile && shown == kStoppedTerminal;
    EXPECT_EQ(till.messages.empty(), allWork) << "the cashier is told of what is broken";
    EXPECT_LE(till.messages.size(), 4U) << "once per outage";
    mend();
    ++combinations;
  }
  std::cout << "devices: " << combinations << " combinations, " << presses
            << " key presses, longest " << longest << " ms, bills lost: 0\n";
}

TEST_F(DeviceFaultTest, APrinterFolderThatTakesNothingCostsOneMessage) {
  std::ofstream(folder.file("no-folder")) << "a file";
  for (const std::string& path : {folder.file("no-folder"), folder.file("missing"),
                                  std::string("/proc/self"), std::string("/dev/full")}) {
    SCOPED_TRACE(path);
    printPages(path, "直接打印2联");
    sellTwice();
    EXPECT_EQ(till.messages.size(), 1U);
    mend();
  }
}
