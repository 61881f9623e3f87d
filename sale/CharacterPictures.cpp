#include "sale/CharacterPictures.h"

#include <QPaintDevice>
#include <QPainter>
#include <QString>
#include <QVarLengthArray>
#include <algorithm>
#include <cstring>

namespace {

constexpr int kMostBytes = 12 << 20;
constexpr QChar kEllipsis(0x2026);

// GB 2312 and what the window adds to it; none of these joins another or moves it.
bool standsAlone(QChar character) {
  const char16_t code = character.unicode();
  return (code >= 0x20 && code < 0x7F) || (code >= 0x3000 && code <= 0x303F) ||
         (code >= 0x4E00 && code <= 0x9FFF) || (code >= 0xFF01 && code <= 0xFF5E);
}

using Pictures = QVarLengthArray<const QImage*, 64>;

int widthOf(const Pictures& pictures) {
  int width = 0;
  for (const QImage* each : pictures) width += each->width();
  return width;
}

void copyRows(const QImage& picture, uchar* to, qsizetype pitch) {
  const qsizetype ownPitch = picture.bytesPerLine();
  const uchar* from = picture.constBits();
  for (int y = picture.height(); y > 0; --y, from += ownPitch, to += pitch) {
    std::memcpy(to, from, size_t(ownPitch));
  }
}

/// All of them side by side: to draw that costs no more than to draw one.
QImage line(const Pictures& pictures) {
  const QImage& first = *pictures.front();
  QImage made(widthOf(pictures), first.height(), first.format());
  made.setDevicePixelRatio(first.devicePixelRatio());
  uchar* to = made.bits();
  for (const QImage* each : pictures) {
    copyRows(*each, to, made.bytesPerLine());
    to += each->bytesPerLine();
  }
  return made;
}

}  // namespace

void CharacterPictures::clear() {
  pictures_.clear();
  bytes_ = 0;
}

bool CharacterPictures::draw(QPainter& painter, const QRect& room, bool right, const QString& text,
                             Overlong overlong) {
  if (text.isEmpty() || !std::all_of(text.begin(), text.end(), standsAlone)) return false;
  if (bytes_ > kMostBytes) clear();
  Pictures pictures;
  for (const QChar character : text) pictures.append(picture(painter, character));
  const double width = room.width() * pictures.front()->devicePixelRatio();
  if (widthOf(pictures) > width) {
    if (overlong == Overlong::kRefuse) return false;
    const QImage* ellipsis = picture(painter, kEllipsis);
    do {
      pictures.removeLast();
    } while (!pictures.isEmpty() && widthOf(pictures) + ellipsis->width() > width);
    pictures.append(ellipsis);
  }
  const QImage drawn = line(pictures);
  const QSizeF size = drawn.deviceIndependentSize();
  const double left = right ? room.left() + room.width() - size.width() : room.left();
  const int above = int(room.height() - size.height()) / 2;
  painter.drawImage(QPointF(left, room.top() + above), drawn);
  return true;
}

int CharacterPictures::width(const QPainter& painter, const QString& text) {
  double width = 0;
  for (const QChar character : text) {
    width += picture(painter, character)->deviceIndependentSize().width();
  }
  return qRound(width);
}

const QImage* CharacterPictures::picture(const QPainter& painter, QChar character) {
  const QColor colour = painter.pen().color();
  const quint64 key = (quint64(colour.rgb()) << 16) | character.unicode();
  const auto [entry, isNew] = pictures_.try_emplace(key);
  QImage& made = entry->second;
  if (!isNew) return &made;
  const QFontMetrics metrics = painter.fontMetrics();
  const double scale = painter.device()->devicePixelRatio();
  const QSizeF size(metrics.horizontalAdvance(character), metrics.height());
  made = QImage((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
  made.setDevicePixelRatio(scale);
  made.fill(Qt::transparent);
  bytes_ += made.sizeInBytes();
  QPainter writer(&made);
  writer.setFont(painter.font());
  writer.setPen(colour);
  writer.drawText(0, metrics.ascent(), character);
  return &made;
}
