#pragma once

#include "checkout/Outage.h"

class ClsPosSet;
class CustomerDisplay;
class Ports;

/// The cash drawer, kicked through its port or through the customer display.
class CashDrawer {
 public:
  CashDrawer(const Ports& ports, const ClsPosSet& settings, CustomerDisplay& display,
             Outage::Report report);

  /// Opens the drawer, if there is one: ESC p 0 60 255 CR LF (ESC/POS, generate pulse), or through
  /// the display when it hangs on the same port. Never throws; a failure is reported once.
  void OpenDrawer();
  bool isThere() const;

 private:
  const Ports& ports_;
  const ClsPosSet& settings_;
  CustomerDisplay& display_;
  Outage outage_;
};
