#pragma once

#include <QCoreApplication>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "base/DateTime.h"
#include "devices/Outage.h"

class ClsPosSet;
class CustomerDisplay;
class Ports;

/// Tries the devices of a till's settings: a line on the receipt printer, 8888.88 on the display, a
/// kick for the drawer. A device that fails costs at most two seconds.
class DeviceTest {
  Q_DECLARE_TR_FUNCTIONS(DeviceTest)

 public:
  /// What happened to one device.
  struct Result {
    QString device;
    QString text;
    bool failed = false;
  };

  DeviceTest(const Ports& ports, const ClsPosSet& settings, Clock clock);
  ~DeviceTest();  ///< closes the display's line, which sends from the event loop until then

  /// Tries printer, drawer and display, whatever the other ones do; the results in this order.
  std::vector<Result> run();

 private:
  using Trial = std::function<QString()>;
  Result result(const QString& device, const std::string& port, const Trial& trial);
  QString tryPrinter();
  QString tryDisplay();
  QString tryDrawer();

  const Ports& ports_;
  const ClsPosSet& settings_;
  Clock clock_;
  QString fault_;  ///< of the device that is being tried
  Outage::Report report_;
  std::unique_ptr<CustomerDisplay> display_;
};
