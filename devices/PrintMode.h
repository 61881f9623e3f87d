#pragma once

#include <string_view>

/// How many receipts the page printer gives after a sale; stored in the settings as its own text.
struct PrintMode {
  int copies = 0;     ///< printed without asking
  bool asks = false;  ///< one copy after a question
  bool yesPreselected = false;

  /// "不打印", "直接打印1联" ... "3联", "打印前提示默认'是'", "打印前提示默认'否'"; any other text:
  /// none.
  static PrintMode of(std::string_view setting);
};
