#pragma once

#include <memory>
#include <string>

#include "platform/ByteSink.h"

class QSerialPort;

/// A serial line held open, 2400 baud, 8 data bits, no parity, 1 stop bit; a pseudo terminal works
/// too. Sending never waits for the line: what it cannot take at once follows from the event loop,
/// and a line that takes nothing any more keeps at most a few hundred bytes waiting.
class SerialLine : public ByteSink {
 public:
  /// Opens the line. Throws PortError with the system's reason.
  SerialLine(std::string name, const std::string& path);
  ~SerialLine() override;  ///< closes the line

  /// Throws PortError when the line is gone.
  void send(std::string_view bytes) override;

 private:
  std::string name_;
  std::unique_ptr<QSerialPort> port_;
};
