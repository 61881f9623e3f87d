#pragma once

#include "checkout/CashDrawer.h"
#include "checkout/CustomerDisplay.h"
#include "checkout/LineReceipt.h"

class ClsSell;
class Messages;
class posMod;

/// The devices of a sale screen, as the settings say. One that fails is told of once per outage.
class SaleDevices {
 public:
  SaleDevices(posMod& pos, Messages& screen);
  /// Opens the display, and finds out what prints how.
  void open();
  /// Prints the receipts of a settled bill on the page printer, as many as wanted.
  void printReceipts(const ClsSell& bill);

 private:
  posMod& pos_;
  Messages& screen_;
  Outage pagePrinter_;

 public:
  CustomerDisplay display;
  CashDrawer drawer;
  LineReceipt receipt;
};
