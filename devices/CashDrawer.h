#pragma once

#include <string>

#include "devices/Outage.h"

class ClsPosSet;
class CustomerDisplay;
class Ports;

/// The cash drawer, kicked through its port or through the customer display.
class CashDrawer {
 public:
  CashDrawer(const ClsPosSet& settings, const Ports& ports, CustomerDisplay& display,
             Outage::Report report);

  bool isConfigured() const { return !port_.empty(); }

  enum class Way { kNone, kThroughDisplay, kThroughPort };
  /// Opens the drawer, if there is one: ESC p 0 60 255 CR LF (ESC/POS, generate pulse), or through
  /// the display when it hangs on the same port. Never throws; a failure is reported once. Gives
  /// the way on which the pulse went.
  Way OpenDrawer();

 private:
  const Ports& ports_;
  CustomerDisplay& display_;
  std::string port_;
  bool hangsOnDisplay_;
  Outage outage_;
};
