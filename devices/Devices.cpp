#include "devices/Devices.h"

#include <utility>

#include "app/ClsPosSet.h"

Devices::Devices(const Ports& ports, Outage::Report report, Outage::Report displayReport)
    : ports_(ports),
      report_(std::move(report)),
      displayReport_(std::move(displayReport)),
      printing_(report_) {
  open({});
}

Devices::~Devices() = default;

void Devices::open(const ClsPosSet& settings) {
  close();  // the new display may be on the line of the old one
  printer_ = ReceiptPrinter::ofSettings(settings, ports_);
  display_ = std::make_unique<CustomerDisplay>(settings, ports_, displayReport_);
  display_->OpenDisplayPort();
  drawer_ = std::make_unique<CashDrawer>(settings, ports_, *display_, report_);
  drawerHangsOnPrinter_ = settings.MBPort == settings.PPort;
}

void Devices::close() {
  if (display_) display_->close();
}

bool Devices::print(const std::function<void(ReceiptPrinter& printer)>& job) {
  return printing_.tried([&] { job(*printer_); });
}
