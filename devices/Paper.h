#pragma once

/// A receipt printer's paper: the roll's width, and widths of a receipt in columns of the printer
/// (a Chinese character is two).
struct Paper {
  int widthMm = 58;
  int line = 32;     ///< W0: the whole line
  int name = 22;     ///< W1: name and price
  int quantity = 4;  ///< W2
  int amount = 6;    ///< W3

  /// Paper model 1 is wide paper, any other narrow.
  static Paper ofModel(int model);
};
