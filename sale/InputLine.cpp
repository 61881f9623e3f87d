#include "sale/InputLine.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleHints>
#include <QStyleOptionFrame>
#include <QTextLayout>
#include <QtMath>
#include <algorithm>

namespace {

constexpr int kMarginOfLineEdit = 2;

bool isAscii(QChar character) {
  return character.unicode() >= 0x20 && character.unicode() < 0x7F;
}

bool isTyped(const QKeyEvent& press) {
  const auto command = press.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  return !command && press.text().size() == 1 && press.text().front().isPrint();
}

}  // namespace

InputLine::InputLine(QWidget* parent) : QLineEdit(parent) {
  blinking_.callOnTimeout(this, &InputLine::blink);
}

// The toolkit first compares the key with its thirty keys for editing.
void InputLine::keyPressEvent(QKeyEvent* event) {
  sinceKey_.start();
  cursorOn_ = true;
  if (!painted_ || composing_ || !isTyped(*event)) return QLineEdit::keyPressEvent(event);
  insert(event->text());
  event->accept();
}

// The toolkit starts the cursor's blinking anew, and with it the painting.
void InputLine::keyReleaseEvent(QKeyEvent* event) {
  event->ignore();
}

void InputLine::inputMethodEvent(QInputMethodEvent* event) {
  composing_ = !event->preeditString().isEmpty();
  QLineEdit::inputMethodEvent(event);
}

void InputLine::focusInEvent(QFocusEvent* event) {
  relearn();
  cursorOn_ = true;
  const int flash = QGuiApplication::styleHints()->cursorFlashTime() / 2;
  if (flash > 0) blinking_.start(flash);
  QLineEdit::focusInEvent(event);
}

void InputLine::focusOutEvent(QFocusEvent* event) {
  relearn();
  blinking_.stop();
  QLineEdit::focusOutEvent(event);
}

void InputLine::resizeEvent(QResizeEvent* event) {
  relearn();
  QLineEdit::resizeEvent(event);
}

void InputLine::changeEvent(QEvent* event) {
  relearn();
  characters_.clear();
  QLineEdit::changeEvent(event);
}

// The cursor stays while keys are typed.
void InputLine::blink() {
  cursorOn_ = !cursorOn_ || (sinceKey_.isValid() && sinceKey_.elapsed() < blinking_.interval());
  if (painted_) update();
}

void InputLine::relearn() {
  painted_ = false;
  empty_ = {};
}

void InputLine::learn() {
  QStyleOptionFrame panel;
  initStyleOption(&panel);
  learnPlace(style()->subElementRect(QStyle::SE_LineEditContents, &panel, this));
  empty_ = QPixmap(size() * devicePixelRatio());
  empty_.setDevicePixelRatio(devicePixelRatio());
  empty_.fill(palette().color(QPalette::Base));
  QPainter painter(&empty_);
  style()->drawPrimitive(QStyle::PE_PanelLineEdit, &panel, &painter, this);
}

// Where the toolkit puts its text layout; characters are drawn on whole pixels, the cursor is not.
void InputLine::learnPlace(const QRect& inside) {
  const QFontMetrics metrics = fontMetrics();
  QTextLayout text("0", font());
  text.beginLayout();
  const QTextLine line = text.createLine();
  text.endLayout();
  const int left = inside.x() + kMarginOfLineEdit;
  const int top = inside.y() + (inside.height() - metrics.height() + 1) / 2 -
                  (qCeil(line.ascent()) - metrics.ascent());
  const int base = top + qFloor(line.ascent());
  room_ = {left, base - metrics.ascent(), inside.width() - 2 * kMarginOfLineEdit - 1,
           metrics.height()};
  cursor_ = QRectF(left, top, style()->pixelMetric(QStyle::PM_TextCursorWidth), line.height());
}

bool InputLine::isPlain() const {
  const QString shown = text();
  return !shown.isEmpty() && !composing_ && !hasSelectedText() &&
         std::all_of(shown.begin(), shown.end(), isAscii);
}

bool InputLine::fits() const {
  return alignment().testFlag(Qt::AlignLeft) &&
         fontMetrics().horizontalAdvance(text()) < room_.width();
}

// Once the toolkit has painted a text that fits, it scrolls nothing.
void InputLine::paintEvent(QPaintEvent* event) {
  if (painted_ && isPlain() && paintPlain()) return;
  QLineEdit::paintEvent(event);
  if (empty_.isNull()) learn();
  painted_ = fits();
}

bool InputLine::paintPlain() {
  QPainter painter(this);
  painter.drawPixmap(0, 0, empty_);
  painter.setFont(font());
  painter.setPen(palette().color(QPalette::Text));
  using Overlong = CharacterPictures::Overlong;
  const bool drawn = characters_.draw(painter, room_, false, text(), Overlong::kRefuse);
  if (drawn && cursorOn_ && hasFocus()) paintCursor(painter);
  return drawn;
}

// As the toolkit does it.
void InputLine::paintCursor(QPainter& painter) {
  const int before = characters_.width(painter, text().left(cursorPosition()));
  painter.setCompositionMode(QPainter::RasterOp_NotDestination);
  painter.fillRect(cursor_.translated(before, 0), painter.pen().brush());
}
