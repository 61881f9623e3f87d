#pragma once

#include <string_view>

/// Where a device takes its bytes: a port file, a serial line, a test's memory.
class ByteSink {
 public:
  virtual ~ByteSink() = default;
  /// Hands all bytes to the device, unchanged and in order. Throws PortError.
  virtual void send(std::string_view bytes) = 0;
};
