#include "checkout/CustomerDisplay.h"

#include "app/ClsPosSet.h"
#include "app/DeviceBytes.h"
#include "app/Ports.h"
#include "platform/ByteSink.h"
#include "platform/PortError.h"

CustomerDisplay::CustomerDisplay(const Ports& ports, const ClsPosSet& settings,
                                 Outage::Report report)
    : ports_(ports), settings_(settings), outage_(std::move(report)) {}

CustomerDisplay::~CustomerDisplay() = default;

void CustomerDisplay::OpenDisplayPort() {
  isOn_ = !settings_.CVProt.empty();
  if (!isOn_ || !device::isKnownDisplay(settings_.CVModel)) return;
  try {
    close();
    line_ = ports_.serialLine(device::displayPort(settings_.CVProt));
    outage_.worked();
  } catch (const PortError& error) {
    switchOff(error);
  }
}

void CustomerDisplay::clientView(Currency money, int mode) {
  if (!isOn_ || !device::isKnownDisplay(settings_.CVModel)) return;
  send(device::displayFigure(money, mode));
}

bool CustomerDisplay::kickDrawer() {
  return send(device::kDrawerThroughDisplay);
}

void CustomerDisplay::close() {
  line_ = nullptr;
}

bool CustomerDisplay::send(std::string_view bytes) {
  if (!line_) return false;
  try {
    line_->send(bytes);
    return true;
  } catch (const PortError& error) {
    switchOff(error);
    return false;
  }
}

void CustomerDisplay::switchOff(const PortError& reason) {
  close();
  isOn_ = false;
  outage_.failed(QString::fromUtf8(reason.what()));
}
