#pragma once

#include <string>
#include <vector>

/// A line of text at its place on the paper, in twips (1440 to the inch) from the top left corner.
struct PlacedText {
  int x = 0;
  int y = 0;
  std::string text;  ///< UTF-8
};

/// One print job: texts in print order, those at one height from left to right, in one fixed-pitch
/// font (a Chinese character is two columns).
struct PageDocument {
  std::string name;  ///< of the job, for the print queue and the PDF's file name
  double fontPoints = 9;
  std::vector<PlacedText> texts;

  /// Height of one text line in twips.
  int lineHeight() const;
  /// Adds lines one below the other at the left edge, from `y` on; gives the place below the last.
  int addLines(int y, const std::vector<std::string>& lines);
};
