#pragma once

#include <memory>

#include "checkout/LineReceipt.h"
#include "devices/Devices.h"

class ClsMember;
class ClsSell;
class Messages;
class posMod;
struct ReceiptFacts;

/// The devices of a sale screen, and the receipts that they print. One that fails is told of once
/// per outage.
class SaleDevices {
 public:
  SaleDevices(posMod& pos, Messages& screen);
  /// Takes the settings over and opens the display.
  void open();
  void close() { devices_.close(); }

  CustomerDisplay& display() { return devices_.display(); }
  CashDrawer& drawer() { return devices_.drawer(); }
  ReceiptPrinter::Kind printerKind() const { return devices_.printer().kind(); }
  /// The footer of a bill's receipt on the line printer. The member is as before the bill.
  void printFoot(const ClsSell& bill, std::shared_ptr<const ClsMember> member);
  /// Prints the receipts of a settled bill on the page printer, as many as wanted.
  void printReceipts(const ClsSell& bill);

 private:
  ReceiptFacts factsOf(const ClsSell& bill, std::shared_ptr<const ClsMember> member) const;

  posMod& pos_;
  Messages& screen_;
  Devices devices_;

 public:
  LineReceipt receipt;
};
