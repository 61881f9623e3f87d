#include "sale/SaleDevices.h"

#include <QCoreApplication>

#include "app/posMod.h"
#include "checkout/Messages.h"
#include "checkout/PageReceipt.h"
#include "checkout/ReceiptLines.h"
#include "platform/QtText.h"
#include "sale/Sale.h"

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("SaleDevices", text);
}

Outage::Report reportTo(Messages& screen) {
  return [&screen](const std::string& text) { screen.ShowMessage(qtText(text)); };
}

// The display's reason is the system's own, and comes in the system's box.
Outage::Report boxOf(Messages& screen) {
  return [&screen](const std::string& text) { screen.messageBox(qtText(text)); };
}

}  // namespace

SaleDevices::SaleDevices(posMod& pos, Messages& screen)
    : pos_(pos),
      screen_(screen),
      devices_(*pos.ports, reportTo(screen), boxOf(screen)),
      receipt(pos.gSysParam, devices_) {}

void SaleDevices::open() {
  devices_.open(pos_.gPosSet);
  receipt.begin();
}

ReceiptFacts SaleDevices::factsOf(const ClsSell& bill,
                                  std::shared_ptr<const ClsMember> member) const {
  return {pos_.gOperator->Code(), std::move(member), originalPrice(bill)};
}

void SaleDevices::printFoot(const ClsSell& bill, std::shared_ptr<const ClsMember> member) {
  receipt.PrintFoot(bill, factsOf(bill, std::move(member)));
}

void SaleDevices::printReceipts(const ClsSell& bill) {
  const PrintMode mode = devices_.printer().mode();
  int copies = mode.copies;
  if (mode.asks && screen_.askYesNo(tr("确定要打印吗"), tr("提示"), mode.yesPreselected)) {
    copies = 1;
  }
  for (int i = 0; i < copies; ++i) {
    devices_.print([&](ReceiptPrinter& printer) {
      // with the points credited
      const ReceiptFacts facts = factsOf(bill, pos_.gMemberSvc.GetMemberById(bill.MemberId()));
      printer.print(
          pageReceipt(bill, facts, pos_.gSysParam, printer.paper(), pos_.gPosSet.printOption));
    });
  }
}
