#include "sale/SaleDevices.h"

#include <QCoreApplication>

#include "app/posMod.h"
#include "base/Failure.h"
#include "checkout/Messages.h"
#include "checkout/PageReceipt.h"
#include "checkout/PrintMode.h"
#include "sale/Sale.h"

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("SaleDevices", text);
}

Outage::Report reportTo(Messages& screen) {
  return [&screen](const QString& text) { screen.ShowMessage(text); };
}

// The display's reason is the system's own, and comes in the system's box.
Outage::Report boxOf(Messages& screen) {
  return [&screen](const QString& text) { screen.messageBox(text); };
}

}  // namespace

SaleDevices::SaleDevices(posMod& pos, Messages& screen)
    : pos_(pos),
      screen_(screen),
      pagePrinter_(reportTo(screen)),
      display(pos.ports, pos.gPosSet, boxOf(screen)),
      drawer(pos.ports, pos.gPosSet, display, reportTo(screen)),
      receipt(pos, drawer, reportTo(screen)) {}

void SaleDevices::open() {
  receipt.start();
  display.OpenDisplayPort();
}

void SaleDevices::printReceipts(const ClsSell& bill) {
  if (pos_.gPosSet.PPort != "USB") return;
  const PrintMode mode = PrintMode::of(pos_.gPosSet.printAmount);
  int copies = mode.copies;
  if (mode.asks && screen_.askYesNo(tr("确定要打印吗"), tr("提示"), mode.yesPreselected)) {
    copies = 1;
  }
  for (int i = 0; i < copies; ++i) {
    try {
      const PageDocument page = pageReceipt(pos_, bill, receipt.widths(), originalPrice(bill));
      pos_.ports.pagePrinter(pos_.gPosSet.PModel)->print(page);
      pagePrinter_.worked();
    } catch (const Failure& error) {
      pagePrinter_.failed(QString::fromUtf8(error.what()));
    }
  }
}
