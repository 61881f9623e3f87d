#include "platform/CoreDumps.h"

#include <sys/prctl.h>
#include <sys/resource.h>

// Both: a dump that is piped to a program of the system's ignores the size limit.
void turnCoreDumpsOff() {
  const rlimit none{0, 0};
  setrlimit(RLIMIT_CORE, &none);
  prctl(PR_SET_DUMPABLE, 0);
}
