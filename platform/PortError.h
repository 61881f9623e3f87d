#pragma once

#include "base/Failure.h"

/// A port that cannot be opened, took too long or went away. The text names the port and the
/// reason.
class PortError : public Failure {
 public:
  using Failure::Failure;
};
