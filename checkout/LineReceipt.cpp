#include "checkout/LineReceipt.h"

#include <algorithm>
#include <iterator>

#include "checkout/ReceiptLines.h"
#include "devices/Devices.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsSellItem.h"

void LineReceipt::begin() {
  isOn_ = devices_.printer().kind() == ReceiptPrinter::Kind::kLine;
}

void LineReceipt::toggle() {
  isOn_ = !isOn_ && devices_.printer().kind() == ReceiptPrinter::Kind::kLine;
}

void LineReceipt::PrintHeader(const ClsSell& bill) {
  if (isOn_) print(bill.BillNo(), receiptHeading(shop_, devices_.printer().paper()));
}

void LineReceipt::PrintLine(const ClsSellItem& line) {
  if (isOn_) print(line.BillNo(), {receiptLine(line, devices_.printer().paper())});
}

void LineReceipt::PrintFoot(const ClsSell& bill, const ReceiptFacts& facts) {
  if (!isOn_) {
    unsent_.clear();
    devices_.drawer().OpenDrawer();
    return;
  }
  failedBill_ = 0;
  const Paper& paper = devices_.printer().paper();
  // The drawer opens while the paper still moves, so that the cashier does not wait for the texts.
  std::vector<std::string> lines = receiptTotals(bill, facts, shop_, paper);
  if (devices_.drawer().isConfigured()) {
    print(bill.BillNo(), lines);
    lines.clear();
    if (unsent_.empty() || !devices_.drawerHangsOnPrinter()) devices_.drawer().OpenDrawer();
  }
  const std::vector<std::string> payment = receiptPayment(bill, facts, shop_, paper);
  std::copy_if(payment.begin(), payment.end(), std::back_inserter(lines),
               [](const std::string& line) { return !line.empty(); });
  lines.resize(lines.size() + 4);
  const std::vector<std::string> nextHeader = receiptHeading(shop_, paper);
  lines.insert(lines.end(), nextHeader.begin(), nextHeader.end());
  print(bill.BillNo(), lines);
  if (!unsent_.empty()) unsent_ = nextHeader;
}

void LineReceipt::FeedLines(const ClsSell& bill) {
  if (isOn_) print(bill.BillNo(), {"", ""});
}

void LineReceipt::print(std::int32_t billNo, const std::vector<std::string>& lines) {
  unsent_.insert(unsent_.end(), lines.begin(), lines.end());
  if (failedBill_ == billNo) return;
  const bool isPrinted =
      devices_.print([this](ReceiptPrinter& printer) { printer.printLines(unsent_); });
  if (isPrinted) {
    unsent_.clear();
  } else {
    failedBill_ = billNo;
  }
}
