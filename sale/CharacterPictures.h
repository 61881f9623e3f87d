#pragma once

#include <QCache>
#include <QColor>
#include <QPixmap>

class QPainter;
class QString;

/// Draws lines of text from pictures of their characters, each made when it is first needed: laying
/// out and blending text is what painting a bill costs most, and a shop's lines are made of few
/// characters. They stand on whole pixels, each beside the one before.
class CharacterPictures {
 public:
  CharacterPictures();

  /// Forgets all pictures: the font is another one.
  void clear() { pictures_.clear(); }

  /// Draws the text in one line, in the painter's font and colour, in the middle of a room of the
  /// colour `back`, at its left or right end; what does not fit is replaced by "…". False, and
  /// nothing is drawn, when it has characters that can't stand alone: only ASCII and Chinese
  /// characters and their punctuation are taken for such that can.
  bool draw(QPainter& painter, const QRect& room, bool right, const QString& text, QColor back);

 private:
  struct Look;

  const QPixmap& picture(const Look& look, QChar character);

  QCache<quint64, QPixmap> pictures_;
};
