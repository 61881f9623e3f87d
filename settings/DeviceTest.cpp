#include "settings/DeviceTest.h"

#include <utility>

#include "app/ClsPosSet.h"
#include "app/Ports.h"
#include "base/Gbk.h"
#include "devices/CashDrawer.h"
#include "devices/CustomerDisplay.h"
#include "devices/ReceiptPrinter.h"
#include "platform/QtText.h"

namespace {

Currency testFigure() {
  return Currency::fromScaled(88888800);
}

}  // namespace

DeviceTest::DeviceTest(const Ports& ports, const ClsPosSet& settings, Clock clock)
    : ports_(ports),
      settings_(settings),
      clock_(std::move(clock)),
      report_([this](const std::string& text) { fault_ = qtText(text); }),
      display_(std::make_unique<CustomerDisplay>(settings, ports, report_)) {}

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
  fault_.clear();
  const QString done = trial();
  return {device, fault_.isEmpty() ? done : fault_, !fault_.isEmpty()};
}

// As wide as the paper, so that the paper model can be judged too. Papers are Chinese whatever the
// screens speak.
QString DeviceTest::tryPrinter() {
  const auto printer = ReceiptPrinter::ofSettings(settings_, ports_);
  const auto columns = static_cast<std::size_t>(printer->paper().line);
  // untranslated: printed
  const std::string line = gbk::centred("打印测试 " + generalText(clock_()), columns, '-');
  const bool isPage = printer->kind() == ReceiptPrinter::Kind::kPage;
  Outage(report_).tried([&] {
    // untranslated: printed
    if (isPage) return printer->print(LineDocument{"打印测试", {line}});
    // Four empty lines move the test line out from under the cover.
    printer->printLines({line, "", "", "", ""});
  });
  return isPage ? tr("测试行已送到系统打印机") : tr("测试行已送到 %1").arg(qtText(settings_.PPort));
}

QString DeviceTest::tryDisplay() {
  if (!CustomerDisplay::isKnownModel(settings_.CVModel)) return tr("没有选定客显型号，未测试");
  display_->OpenDisplayPort();
  display_->clientView(testFigure(), CustomerDisplay::kTotal);
  return tr("8888.88 已送到 %1").arg(qtText(display_->port()));
}

QString DeviceTest::tryDrawer() {
  CashDrawer drawer(settings_, ports_, *display_, report_);
  const bool throughDisplay = drawer.OpenDrawer() == CashDrawer::Way::kThroughDisplay;
  const QString sent = throughDisplay ? tr("开箱信号已通过客显送到 %1") : tr("开箱信号已送到 %1");
  return sent.arg(qtText(settings_.MBPort));
}
