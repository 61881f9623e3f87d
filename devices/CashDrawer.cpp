#include "devices/CashDrawer.h"

#include <utility>

#include "app/ClsPosSet.h"
#include "app/Ports.h"
#include "devices/CustomerDisplay.h"
#include "devices/DeviceBytes.h"

CashDrawer::CashDrawer(const ClsPosSet& settings, const Ports& ports, CustomerDisplay& display,
                       Outage::Report report)
    : ports_(ports),
      display_(display),
      port_(settings.MBPort),
      hangsOnDisplay_(settings.MBPort == settings.CVProt),
      outage_(std::move(report)) {}

CashDrawer::Way CashDrawer::OpenDrawer() {
  if (!isConfigured()) return Way::kNone;
  if (hangsOnDisplay_ && display_.kickDrawer()) return Way::kThroughDisplay;
  const bool kicked = outage_.tried([this] { ports_.portFile(port_)->send(device::kDrawerPulse); });
  return kicked ? Way::kThroughPort : Way::kNone;
}
