#pragma once

#include "base/Failure.h"

/// A file could not be written; the text says which and why.
class FileError : public Failure {
 public:
  using Failure::Failure;
};
