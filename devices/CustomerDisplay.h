#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "base/Currency.h"
#include "devices/Outage.h"

class ByteSink;
class ClsPosSet;
class Ports;

/// The customer's pole display, eight digits on a serial line. Both models take the same commands:
/// ESC s n chooses what the figure means, ESC Q A figure CR shows it.
class CustomerDisplay {
 public:
  /// The display of these settings, off until it is opened.
  CustomerDisplay(const ClsPosSet& settings, const Ports& ports, Outage::Report report);
  ~CustomerDisplay();

  enum Mode { kNone = 0, kPrice = 1, kTotal = 2, kReceived = 3, kChange = 4 };

  /// Opens the line when a display of a known model is configured. A failure is reported and leaves
  /// the display off.
  void OpenDisplayPort();
  /// Shows an amount. Never waits, never throws; a line that is gone is reported once and switches
  /// the display off. A mode that is none of the above leaves the figure's meaning as it is.
  void clientView(Currency money, int mode);
  /// Opens a drawer that hangs on the display: STX M. False when there is no working display.
  [[nodiscard]] bool kickDrawer();
  void close();

  /// 1 and 2; a display of any other model is not driven.
  static bool isKnownModel(int model);
  /// The port's name, "COMn"; empty before it is opened.
  const std::string& port() const { return port_; }
  bool isOn() const { return line_ != nullptr; }

 private:
  bool send(std::string_view bytes);

  const Ports& ports_;
  std::string setting_;
  int model_;
  std::string port_;
  Outage outage_;
  std::unique_ptr<ByteSink> line_;
};
