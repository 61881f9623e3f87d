#include "base/Failure.h"

#include <cstdio>
#include <cstdlib>

void stopOnBrokenInvariant(const char* what, const char* file, int line) {
  std::fprintf(stderr, "%s:%d: broken invariant: %s\n", file, line, what);
  std::abort();
}
