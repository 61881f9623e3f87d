#pragma once

#include <istream>
#include <ostream>
#include <string>

#include "base/DateTime.h"

/// Where the tool reads and writes, and what time it is; given in, so that a test can look.
struct Console {
  std::istream& in;
  std::ostream& out;  ///< results
  std::ostream& err;  ///< errors and progress
  Clock clock;
  bool isTerminal = false;  ///< somebody sits at `in`: passwords are asked for and typed unseen
};

/// A password as typed unseen at the terminal, or else the next line of `in`. Throws Refusal when
/// there is none.
std::string askPassword(Console& console, const std::string& prompt);
/// The same for a new password: typed twice at the terminal. Throws Refusal too when the two
/// differ.
std::string askNewPassword(Console& console, const std::string& prompt);
