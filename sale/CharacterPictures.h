#pragma once

#include <QImage>
#include <unordered_map>

class QPainter;
class QString;

/// Draws lines of text from pictures of their characters, each made when it is first needed: laying
/// out and blending text is what painting the sale screen costs most, and a shop's lines are made
/// of few characters. They stand on whole pixels, each beside the one before.
class CharacterPictures {
 public:
  /// Forgets all pictures: the font is another one.
  void clear();

  /// What to do with a text that is wider than its room.
  enum class Overlong { kCut, kRefuse };

  /// Draws the text in one line, in the painter's font and colour, in the middle of the room's
  /// height, at its left or right end; a text that is cut ends with "…". False, and nothing is
  /// drawn, when it is refused or has characters that can't stand alone: only ASCII and Chinese
  /// characters and their punctuation are taken for such that can.
  bool draw(QPainter& painter, const QRect& room, bool right, const QString& text,
            Overlong overlong);
  /// How wide draw() draws a text of characters that stand alone.
  int width(const QPainter& painter, const QString& text);

 private:
  const QImage* picture(const QPainter& painter, QChar character);

  std::unordered_map<quint64, QImage> pictures_;  ///< by colour and character
  qsizetype bytes_ = 0;                           ///< of all pictures
};
