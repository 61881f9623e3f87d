#include "settings/DeviceTest.h"

#include <utility>

#include "app/ClsPosSet.h"
#include "app/DeviceBytes.h"
#include "app/Ports.h"
#include "base/Failure.h"
#include "base/Gbk.h"

namespace {

constexpr int kTotalMode = 2;

QString portText(const std::string& port) {
  return QString::fromStdString(port);
}

Currency testFigure() {
  return Currency::fromScaled(88888800);
}

}  // namespace

DeviceTest::DeviceTest(const Ports& ports, const ClsPosSet& settings, Clock clock)
    : ports_(ports), settings_(settings), clock_(std::move(clock)) {}

DeviceTest::~DeviceTest() = default;

std::vector<DeviceTest::Result> DeviceTest::run() {
  const Result printer = result(tr("小票打印机"), settings_.PPort, [this] { return tryPrinter(); });
  // Before the drawer, which may hang on the display.
  const Result display = result(tr("客显"), settings_.CVProt, [this] { return tryDisplay(); });
  const Result drawer = result(tr("钱箱"), settings_.MBPort, [this] { return tryDrawer(); });
  return {printer, drawer, display};
}

DeviceTest::Result DeviceTest::result(const QString& device, const std::string& port,
                                      const Trial& trial) {
  if (port.empty()) return {device, tr("没有设定端口，未测试"), false};
  try {
    return {device, trial(), false};
  } catch (const Failure& error) {
    return {device, QString::fromUtf8(error.what()), true};
  }
}

// As wide as the paper, so that the paper model can be judged too.
QString DeviceTest::tryPrinter() const {
  const bool wide = settings_.PModel == 1;
  const std::string line = gbk::centred("打印测试 " + generalText(clock_()), wide ? 40 : 32, '-');
  if (settings_.PPort == "USB") {
    PageDocument page;
    page.name = "打印测试";
    page.texts.push_back({0, 0, line});
    ports_.pagePrinter(settings_.PModel)->print(page);
    return tr("测试行已送到系统打印机");
  }
  // Four empty lines move the test line out from under the cover.
  ports_.portFile(settings_.PPort)->send(device::printedLines({line, "", "", "", ""}));
  return tr("测试行已送到 %1").arg(portText(settings_.PPort));
}

QString DeviceTest::tryDisplay() {
  if (!device::isKnownDisplay(settings_.CVModel)) return tr("没有选定客显型号，未测试");
  const std::string port = device::displayPort(settings_.CVProt);
  auto line = ports_.serialLine(port);
  line->send(device::displayFigure(testFigure(), kTotalMode));
  display_ = std::move(line);
  return tr("8888.88 已送到 %1").arg(portText(port));
}

QString DeviceTest::tryDrawer() {
  if (display_ && settings_.MBPort == settings_.CVProt) {
    display_->send(device::kDrawerThroughDisplay);
    return tr("开箱信号已通过客显送到 %1").arg(portText(settings_.MBPort));
  }
  ports_.portFile(settings_.MBPort)->send(device::kDrawerPulse);
  return tr("开箱信号已送到 %1").arg(portText(settings_.MBPort));
}
