#include "base/Failure.h"

#include <cstdio>
#include <cstdlib>

void ensure(bool holds, const char* what, const char* file, int line) {
  if (holds) return;
  std::fprintf(stderr, "%s:%d: broken invariant: %s\n", file, line, what);
  std::abort();
}
