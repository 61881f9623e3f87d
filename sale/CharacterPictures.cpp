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

/// All of them side by side: to draw that costs no more than to draw one.
QImage line(const Pictures& pictures) {
  const QImage& first = *pictures.front();
  QImage made(widthOf(pictures), first.height(), first.format());
  made.setDevicePixelRatio(first.devicePixelRatio());
  uchar* to = made.bits();
  for (const QImage* each : pictures) {
    const uchar* from = each->constBits();
    const auto bytes = size_t(each->bytesPerLine());
    for (int y = 0; y < made.height(); ++y) {
      std::memcpy(to + y * made.bytesPerLine(), from + y * each->bytesPerLine(), bytes);
    }
    to += bytes;
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
  painter.drawImage(QPointF(left, room.top() + int(room.height() - size.height()) / 2), drawn);
  return true;
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
