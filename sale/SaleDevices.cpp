#include "sale/SaleDevices.h"

#include "app/ClsPosSet.h"
#include "checkout/Messages.h"
#include "checkout/PageReceipt.h"
#include "checkout/ReceiptLines.h"
#include "platform/QtText.h"

namespace {

Outage::Report reportTo(Messages& screen) {
  return [&screen](const std::string& text) { screen.ShowMessage(qtText(text)); };
}

// The display's reason is the system's own, and comes in the system's box.
Outage::Report boxOf(Messages& screen) {
  return [&screen](const std::string& text) { screen.messageBox(qtText(text)); };
}

}  // namespace

SaleDevices::SaleDevices(const Ports& ports, const ClsPosSet& settings, const ClsSysParam& shop,
                         Messages& screen)
    : settings_(settings),
      shop_(shop),
      screen_(screen),
      devices_(ports, reportTo(screen), boxOf(screen)),
      receipt(shop, devices_) {}

void SaleDevices::open() {
  devices_.open(settings_);
  receipt.begin();
}

void SaleDevices::printReceipts(const ClsSell& bill, const std::function<ReceiptFacts()>& facts) {
  const PrintMode mode = devices_.printer().mode();
  int copies = mode.copies;
  if (mode.asks && screen_.askYesNo(tr("确定要打印吗"), tr("提示"), mode.yesPreselected)) {
    copies = 1;
  }
  for (int i = 0; i < copies; ++i) {
    devices_.print([&](ReceiptPrinter& printer) {
      printer.print(pageReceipt(bill, facts(), shop_, printer.paper(), settings_.printOption));
    });
  }
}
