#pragma once

#include "base/Failure.h"

/// The data file could not do what was asked: not there, not readable, locked, full, broken, or a
/// statement that is none. The text says which, for the shop's owner to read.
class StoreError : public Failure {
 public:
  using Failure::Failure;
};

/// Another program writes to the data file, and went on doing so for as long as anybody waits:
/// later it may go.
class StoreBusy : public StoreError {
 public:
  using StoreError::StoreError;
};
