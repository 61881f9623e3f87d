#include "store/IndexWalk.h"

std::string walkedAlong(const char* table, const char* index) {
  return std::string(table) + " indexed by " + index;
}
