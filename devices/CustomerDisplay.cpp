#include "devices/CustomerDisplay.h"

#include <utility>

#include "app/ClsPosSet.h"
#include "app/Ports.h"
#include "devices/DeviceBytes.h"
#include "platform/ByteSink.h"

CustomerDisplay::CustomerDisplay(const ClsPosSet& settings, const Ports& ports,
                                 Outage::Report report)
    : ports_(ports),
      setting_(settings.CVProt),
      model_(settings.CVModel),
      outage_(std::move(report)) {}

CustomerDisplay::~CustomerDisplay() = default;

void CustomerDisplay::OpenDisplayPort() {
  if (setting_.empty() || !isKnownModel(model_)) return;
  close();
  outage_.tried([this] {
    port_ = device::displayPort(setting_);
    line_ = ports_.serialLine(port_);
  });
}

bool CustomerDisplay::isKnownModel(int model) {
  return model == 1 || model == 2;
}

void CustomerDisplay::clientView(Currency money, int mode) {
  send(device::displayFigure(money, mode));
}

bool CustomerDisplay::kickDrawer() {
  return send(device::kDrawerThroughDisplay);
}

void CustomerDisplay::close() {
  line_ = nullptr;
}

bool CustomerDisplay::send(std::string_view bytes) {
  if (!isOn()) return false;
  const bool sent = outage_.tried([&] { line_->send(bytes); });
  if (!sent) close();
  return sent;
}
