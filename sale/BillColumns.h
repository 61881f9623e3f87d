#pragma once

#include <array>

#include "sale/SalePicture.h"

class QFontMetrics;
class QString;

/// The widths of the bill's columns, in pixels. A figure that is wider than its column takes room
/// from the name and the origin, as long as something of these can be read; only what then still
/// does not fit is for the list to draw smaller.
class BillColumns {
 public:
  /// Price, quantity, discount, amount and stock: what is never cut.
  static bool isFigure(int column);

  /// For a list of that width and type; no figure is known any more.
  void setRoom(int width, const QFontMetrics& type);
  /// A figure of the list, in the type of setRoom; true when the columns have changed for it.
  [[nodiscard]] bool makeRoomFor(int column, const QString& text, const QFontMetrics& type);
  /// The list is empty: the usual widths again. True when these are others.
  [[nodiscard]] bool forgetFigures();
  int width(int column) const { return widths_[static_cast<std::size_t>(column)]; }
  /// Kept free at both ends of a cell.
  int padding() const { return padding_; }

 private:
  void share();

  using Widths = std::array<int, BillRow::kColumns>;
  Widths usual_{}, needed_{}, widths_{};
  int room_ = 0;
  int em_ = 0;
  int padding_ = 0;
  int widest_ = 0;  ///< of what figures are made of
};

/// The width of a text whose characters stand on whole pixels.
int textWidth(const QFontMetrics& type, const QString& text);
