#pragma once

#include <functional>
#include <memory>

#include "devices/CashDrawer.h"
#include "devices/CustomerDisplay.h"
#include "devices/Outage.h"
#include "devices/ReceiptPrinter.h"

class ClsPosSet;
class Ports;

/// The devices of a sale: printer, display and drawer, chosen once from the settings. None of them
/// holds the sale up or throws; each is reported once per outage.
class Devices {
 public:
  /// No devices until open(). The display's failures come with the system's own reason and are
  /// reported apart.
  Devices(const Ports& ports, Outage::Report report, Outage::Report displayReport);
  ~Devices();

  /// Takes the settings over and opens the display.
  void open(const ClsPosSet& settings);
  /// Gives the display's line back.
  void close();

  const ReceiptPrinter& printer() const { return *printer_; }
  CustomerDisplay& display() { return *display_; }
  CashDrawer& drawer() { return *drawer_; }
  /// The drawer is kicked through the printer's port, and fails with it.
  bool drawerHangsOnPrinter() const { return drawerHangsOnPrinter_; }

  /// Works with the printer; false when that failed.
  bool print(const std::function<void(ReceiptPrinter& printer)>& job);

 private:
  const Ports& ports_;
  Outage::Report report_;
  Outage::Report displayReport_;
  Outage printing_;
  std::unique_ptr<ReceiptPrinter> printer_;
  std::unique_ptr<CustomerDisplay> display_;
  std::unique_ptr<CashDrawer> drawer_;
  bool drawerHangsOnPrinter_ = false;
};
