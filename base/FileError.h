#pragma once

#include <string>

#include "base/Failure.h"

/// A file could not be written; the text says which and why.
class FileError : public Failure {
 public:
  using Failure::Failure;
};

/// Why the system refused to make or to write a file (its errno), as a sentence for the shop's
/// owner.
std::string fileFault(int errorNumber);
