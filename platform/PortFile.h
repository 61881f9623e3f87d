#pragma once

#include <chrono>
#include <string>

#include "platform/ByteSink.h"

/// A printer or drawer port reached as a file: a character device, FIFO, pseudo terminal or plain
/// file (appended to; created when missing, except in /dev). Opened for each send and closed after
/// it, so that the port is never held.
class PortFile : public ByteSink {
 public:
  /// A key press that settles a bill writes to the printer and to the drawer. When both block, the
  /// cashier waits for two limits.
  static constexpr std::chrono::milliseconds kLimit{1000};

  /// `name` is what people call the port ("LPT1"), `path` what it stands for on this machine.
  PortFile(std::string name, std::string path, std::chrono::milliseconds limit = kLimit);
  /// Opens without blocking, writes all bytes within the time limit, closes. Throws PortError with
  /// the port's name and the reason (missing, refused, nobody reads, full, too slow).
  void send(std::string_view bytes) override;

 private:
  std::string name_;
  std::string path_;
  std::chrono::milliseconds limit_;
};
