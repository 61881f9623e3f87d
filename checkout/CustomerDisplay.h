#pragma once

#include <memory>
#include <string_view>

#include "base/Currency.h"
#include "checkout/Outage.h"

class ByteSink;
class ClsPosSet;
class PortError;
class Ports;

/// The customer's pole display, eight digits on a serial line. Both models take the same commands:
/// ESC s n chooses what the figure means, ESC Q A figure CR shows it.
class CustomerDisplay {
 public:
  CustomerDisplay(const Ports& ports, const ClsPosSet& settings, Outage::Report report);
  ~CustomerDisplay();

  enum Mode { kNone = 0, kPrice = 1, kTotal = 2, kReceived = 3, kChange = 4 };

  /// Opens the line when a display of a known model is configured; a failure is reported once and
  /// switches the display off until the sale screen opens again.
  void OpenDisplayPort();
  /// Shows an amount. Never waits, never throws; a line that is gone is reported once and switches
  /// the display off likewise. A mode that is none of the above leaves the figure's meaning as it
  /// is.
  void clientView(Currency money, int mode);
  /// Opens a drawer that hangs on the display: STX M. False when there is no working display.
  [[nodiscard]] bool kickDrawer();
  void close();

 private:
  bool send(std::string_view bytes);
  void switchOff(const PortError& reason);

  const Ports& ports_;
  const ClsPosSet& settings_;
  bool isOn_ = false;
  Outage outage_;
  std::unique_ptr<ByteSink> line_;
};
