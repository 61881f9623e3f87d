#include "checkout/CustomerDisplay.h"

#include "app/ClsPosSet.h"
#include "app/Ports.h"
#include "base/NumberText.h"
#include "checkout/SaleState.h"
#include "platform/ByteSink.h"
#include "platform/PortError.h"

namespace {

bool isKnownModel(int model) {
  return model == 1 || model == 2;
}

std::string portName(const std::string& setting) {
  if (setting == "COM1" || setting == "COM2") return setting;
  const auto number = parseWhole32(setting);
  if (!number) throw PortError("客户显示屏的端口“" + setting + "”不是有效的端口号");
  return "COM" + std::to_string(*number);
}

}  // namespace

CustomerDisplay::CustomerDisplay(const Ports& ports, const ClsPosSet& settings, SaleState& state,
                                 Outage::Report report)
    : ports_(ports), settings_(settings), state_(state), outage_(std::move(report)) {}

CustomerDisplay::~CustomerDisplay() = default;

void CustomerDisplay::OpenDisplayPort() {
  if (!isKnownModel(settings_.CVModel)) return;
  try {
    close();
    line_ = ports_.serialLine(portName(settings_.CVProt));
    outage_.worked();
  } catch (const PortError& error) {
    switchOff(error);
  }
}

void CustomerDisplay::clientView(Currency money, int mode) {
  if (!state_.hasDisplay || !isKnownModel(settings_.CVModel)) return;
  std::string bytes;
  if (mode >= kNone && mode <= kChange) bytes = {'\x1B', 's', static_cast<char>('0' + mode)};
  send(bytes + "\x1BQA" + twoDecimals(money) + "\r");
}

bool CustomerDisplay::kickDrawer() {
  return send("\x02M");
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
  state_.hasDisplay = false;
  outage_.failed(QString::fromUtf8(reason.what()));
}
