#pragma once

#include <array>
#include <string>
#include <vector>

#include "app/clsQk.h"

class IniFile;

/// The keyboard map: which key does what, as Windows virtual-key codes, and the quick keys. No form
/// fixes a key code; each compares the key pressed with these fields at every press. 0 is no key.
class KeyBoard {
 public:
  int mEsc = 27;
  int mEnter = 13;
  int mF1 = 112;
  int mF2 = 113;
  int mF3 = 114;
  int mF4 = 115;
  int mF5 = 116;
  int mF6 = 117;
  int mF7 = 118;
  int mF8 = 119;
  int mF9 = 120;
  int mF10 = 121;
  int mF11 = 122;
  int mF12 = 123;
  int mLeft = 37;
  int mRight = 39;
  int mUp = 38;
  int mDown = 40;
  std::vector<clsQk> QK;  ///< in file order

  /// What a key stands for: the plain Enter key is the mapped one, whatever that is; every other
  /// key is itself.
  int meaning(int code) const;
  /// Reads the keys, and appends the file's quick keys to QK. A key that is absent has its default,
  /// one with an empty value is 0, one that is no number keeps its default; a quick key without ";"
  /// or with a code that is no number is left out.
  void LoadSet(const IniFile& file);
  /// Empties QK.
  void ReSetQk();
  /// Writes keys and quick keys; a shorter list leaves empty keys behind its end. A file that
  /// cannot be written is not reported.
  void SaveSet(const IniFile& file) const;

  /// The eighteen keys with their names in the file, in the file's order.
  struct Key {
    const char* name;
    int KeyBoard::*field;
  };
  static const std::array<Key, 18>& keys();
};
