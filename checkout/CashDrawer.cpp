#include "checkout/CashDrawer.h"

#include <string_view>

#include "app/ClsPosSet.h"
#include "app/Ports.h"
#include "checkout/CustomerDisplay.h"
#include "checkout/SaleState.h"
#include "platform/PortError.h"

namespace {

// ESC/POS "generate pulse": ESC p, pin 0, on time 60, off time 255 (2 ms each), then a line end.
constexpr std::string_view kPulse{"\x1B\x70\x00\x3C\xFF\r\n", 7};

}  // namespace

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
    ports_.portFile(settings_.MBPort)->send(kPulse);
    outage_.worked();
  } catch (const PortError& error) {
    outage_.failed(QString::fromUtf8(error.what()));
  }
}
