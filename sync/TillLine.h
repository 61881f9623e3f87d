#pragma once

#include "link/AuthorityFile.h"
#include "link/ServerLine.h"
#include "saleslib/ShopLink.h"

/// A till's line to its shop's server, as its data file says how to get there.
class TillLine {
 public:
  explicit TillLine(const ShopLink& link);

  ServerLine& line() { return line_; }

 private:
  AuthorityFile authority_;
  ServerLine line_;
};
