#include "sale/CharacterPictures.h"

#include <QPaintDevice>
#include <QPainter>
#include <QString>
#include <QVarLengthArray>
#include <algorithm>

namespace {

constexpr int kMostPictures = 6000;  // some 2 KB each
constexpr QChar kEllipsis(0x2026);

// GB 2312 and what the window adds to it; none of these joins another or moves it.
bool standsAlone(QChar character) {
  const char16_t code = character.unicode();
  return (code >= 0x20 && code < 0x7F) || (code >= 0x3000 && code <= 0x303F) ||
         (code >= 0x4E00 && code <= 0x9FFF) || (code >= 0xFF01 && code <= 0xFF5E);
}

int widthOf(const QPixmap& picture) {
  return qRound(picture.deviceIndependentSize().width());
}

}  // namespace

struct CharacterPictures::Look {
  const QPainter& painter;
  QFontMetrics metrics;
  QColor text, back;

  // Colours without transparency leave room for the character.
  quint64 key(QChar character) const {
    return (quint64(text.rgb() & 0xFFFFFF) << 40) | (quint64(back.rgb() & 0xFFFFFF) << 16) |
           character.unicode();
  }
};

CharacterPictures::CharacterPictures() : pictures_(kMostPictures) {}

bool CharacterPictures::draw(QPainter& painter, const QRect& room, bool right, const QString& text,
                             QColor back) {
  if (!std::all_of(text.begin(), text.end(), standsAlone)) return false;
  const Look look{painter, painter.fontMetrics(), painter.pen().color(), back};
  QVarLengthArray<QPixmap, 64> line;
  int width = 0;
  for (const QChar character : text) {
    line.append(picture(look, character));
    width += widthOf(line.last());
  }
  if (width > room.width()) {
    const QPixmap& ellipsis = picture(look, kEllipsis);
    for (width += widthOf(ellipsis); width > room.width() && !line.isEmpty(); line.removeLast()) {
      width -= widthOf(line.last());
    }
    line.append(ellipsis);
  }
  int left = right ? room.right() + 1 - width : room.left();
  const int top = room.top() + (room.height() - look.metrics.height()) / 2;
  for (const QPixmap& drawn : line) {
    painter.drawPixmap(left, top, drawn);
    left += widthOf(drawn);
  }
  return true;
}

const QPixmap& CharacterPictures::picture(const Look& look, QChar character) {
  if (const QPixmap* known = pictures_.object(look.key(character))) return *known;
  const QSizeF size(look.metrics.horizontalAdvance(character), look.metrics.height());
  const double scale = look.painter.device()->devicePixelRatio();
  auto* made = new QPixmap((size * scale).toSize());
  made->setDevicePixelRatio(scale);
  made->fill(look.back);
  QPainter writer(made);
  writer.setFont(look.painter.font());
  writer.setPen(look.text);
  writer.drawText(0, look.metrics.ascent(), character);
  writer.end();
  pictures_.insert(look.key(character), made);
  return *made;
}
