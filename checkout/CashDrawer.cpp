#include "checkout/CashDrawer.h"

#include "app/ClsPosSet.h"
#include "app/DeviceBytes.h"
#include "app/Ports.h"
#include "checkout/CustomerDisplay.h"
#include "checkout/SaleState.h"
#include "platform/PortError.h"

CashDrawer::CashDrawer(const Ports& ports, const ClsPosSet& settings, const SaleState& state,
                       CustomerDisplay& display, Outage::Report report)
    : ports_(ports),
      settings_(settings),
      state_(state),
      display_(display),
      outage_(std::move(report)) {}

void CashDrawer::OpenDrawer() {
  if (!state_.hasDrawer) return;
  const bool onDisplay = settings_.MBPort == settings_.CVProt && state_.hasDisplay;
  if (onDisplay && display_.kickDrawer()) return;
  try {
    ports_.portFile(settings_.MBPort)->send(device::kDrawerPulse);
    outage_.worked();
  } catch (const PortError& error) {
    outage_.failed(QString::fromUtf8(error.what()));
  }
}
