#include "base/Version.h"

std::string_view tillVersion() {
  return TILL_VERSION;
}
