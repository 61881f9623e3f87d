#pragma once

#include <stdexcept>
#include <string>

/// Something broke that the caller did not ask about: the data file, a port, an overflowing sum.
/// The text is in Chinese and made for the cashier or the shop's owner to read.
/// Expected outcomes (refused stock, wrong password) are return values, never a Failure.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A sum of money that does not fit; thrown instead of a wrong sum.
class Overflow : public Failure {
 public:
  using Failure::Failure;
};

[[noreturn]] void stopOnBrokenInvariant(const char* what, const char* file, int line);

/// Stops the program when `holds` is false: a bug, never an input. Stays on in release builds,
/// because a till that goes on with wrong books costs more than one that stops.
/// `file` and `line` are the caller's; built-ins, because clang-tidy 14 cannot read
/// <source_location>.
inline void ensure(bool holds, const char* what, const char* file = __builtin_FILE(),
                   int line = __builtin_LINE()) {
  if (!holds) stopOnBrokenInvariant(what, file, line);
}
