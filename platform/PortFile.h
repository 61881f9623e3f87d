#pragma once

#include <chrono>
#include <string>

#include "platform/ByteSink.h"

/// A printer or drawer port reached as a file: a character device, FIFO, pseudo terminal or plain
/// file (appended to; created when missing, except in /dev). Opened for each send and closed after
/// it, so that the port is never held.
class PortFile : public ByteSink {
 public:
  /// `name` is what people call the port ("LPT1"), `path` what it stands for on this machine.
  PortFile(std::string name, std::string path,
           std::chrono::milliseconds limit = std::chrono::milliseconds(2000));
  /// Opens without blocking, writes all bytes within the time limit, closes. Throws PortError with
  /// the port's name and the reason (missing, refused, nobody reads, full, too slow).
  void send(std::string_view bytes) override;

 private:
  std::string name_;
  std::string path_;
  std::chrono::milliseconds limit_;
};
