#pragma once

#include <QCoreApplication>
#include <functional>

#include "checkout/LineReceipt.h"
#include "devices/Devices.h"

class ClsSell;
class ClsSysParam;
class Messages;
struct ReceiptFacts;

/// The devices of a sale screen, and the receipts that they print. One that fails is told of once
/// per outage.
class SaleDevices {
  Q_DECLARE_TR_FUNCTIONS(SaleDevices)

 public:
  SaleDevices(const Ports& ports, const ClsPosSet& settings, const ClsSysParam& shop,
              Messages& screen);
  /// Takes the settings over and opens the display.
  void open();
  void close() { devices_.close(); }

  CustomerDisplay& display() { return devices_.display(); }
  CashDrawer& drawer() { return devices_.drawer(); }
  ReceiptPrinter::Kind printerKind() const { return devices_.printer().kind(); }
  /// Prints the receipts of a settled bill on the page printer, as many as wanted. The facts are
  /// asked for each; the member's points are those after the bill.
  void printReceipts(const ClsSell& bill, const std::function<ReceiptFacts()>& facts);

 private:
  const ClsPosSet& settings_;
  const ClsSysParam& shop_;
  Messages& screen_;
  Devices devices_;

 public:
  LineReceipt receipt;
};
