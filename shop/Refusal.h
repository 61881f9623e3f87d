#pragma once

#include "base/Failure.h"

/// The tool did nothing, and says why: a taken number, an unknown name, a bad row. Thrown through a
/// command's open transaction, which takes everything back.
class Refusal : public Failure {
 public:
  using Failure::Failure;
};
