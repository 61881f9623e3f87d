#include "base/Failure.h"

#include <cstdio>
#include <cstdlib>

void ensure(bool holds, const char* what, std::source_location where) {
  if (holds) return;
  std::fprintf(stderr, "%s:%u: broken invariant: %s\n", where.file_name(), where.line(), what);
  std::abort();
}
