#include "checkout/CashDrawer.h"

#include "app/ClsPosSet.h"
#include "app/DeviceBytes.h"
#include "app/Ports.h"
#include "checkout/CustomerDisplay.h"
#include "platform/PortError.h"

CashDrawer::CashDrawer(const Ports& ports, const ClsPosSet& settings, CustomerDisplay& display,
                       Outage::Report report)
    : ports_(ports), settings_(settings), display_(display), outage_(std::move(report)) {}

bool CashDrawer::isThere() const {
  return !settings_.MBPort.empty();
}

void CashDrawer::OpenDrawer() {
  if (!isThere()) return;
  const bool onDisplay = settings_.MBPort == settings_.CVProt;
  if (onDisplay && display_.kickDrawer()) return;
  try {
    ports_.portFile(settings_.MBPort)->send(device::kDrawerPulse);
    outage_.worked();
  } catch (const PortError& error) {
    outage_.failed(QString::fromUtf8(error.what()));
  }
}
