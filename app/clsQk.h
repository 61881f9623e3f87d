#pragma once

#include <string>

/// One quick key: a key that rings up one item.
struct clsQk {
  int QK_int = 0;     ///< virtual-key code
  std::string QK_Bm;  ///< item code
};
