#include "sale/SellControls.h"

#include <QFrame>
#include <QLabel>
#include <QWidget>
#include <algorithm>

#include "platform/Twips.h"
#include "sale/BillView.h"
#include "sale/FittedLabel.h"
#include "sale/InputLine.h"
#include "sale/KeyHelp.h"
#include "sale/SellStyle.h"

namespace {

constexpr int kGap = pixels(100);

template <class Widget>
Widget* named(const char* name, QWidget* parent) {
  auto* widget = new Widget(parent);
  widget->setObjectName(name);
  return widget;
}

}  // namespace

SellControls::SellControls(QWidget* screen)
    : title(named<FittedLabel>("title", screen)),
      title1(named<FittedLabel>("title1", screen)),
      title2(named<QLabel>("title2", screen)),
      title3(named<FittedLabel>("title3", screen)),
      lv(named<BillView>("lv", screen)),
      t(named<InputLine>("t", lv->viewport())),
      txtmoney(named<FittedLabel>("txtmoney", screen)),
      lblViewMember(named<FittedLabel>("lblViewMember", screen)),
      frmBot(named<QFrame>("frmBot", screen)),
      ViewF(named<KeyHelp>("ViewF", frmBot)),
      screen_(screen) {
  title->setAlignment(Qt::AlignCenter);
  title3->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  txtmoney->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  t->setContextMenuPolicy(Qt::NoContextMenu);
  t->setInputMethodHints(Qt::ImhPreferLatin | Qt::ImhNoPredictiveText);
}

void SellControls::arrange(const ClsPosSet& settings, const KeyBoard& keys) {
  ViewF->show(keys);
  const int type = sellTypeSize(screen_->width());
  screen_->setStyleSheet(sellStyleSheet(settings, type));
  setSizes(type);
  layOut(type);
  t->ensurePolished();
  // Else each typed key paints the list beneath it. A style sheet takes it back.
  t->setAttribute(Qt::WA_OpaquePaintEvent);
}

void SellControls::setSizes(int type) {
  title->setLargest(type * 2);
  title1->setLargest(type);
  title3->setLargest(type);
  txtmoney->setIndent(type / 3);
  txtmoney->setLargest(type * 5 / 2);
  txtmoney->setSmallest(type);
  lblViewMember->setLargest(type * 9 / 10);
}

void SellControls::layOut(int type) {
  const int inner = screen_->width() - 2 * kGap;
  layOutHeadings();
  const int help = ViewF->heightForWidth(inner) + kGap;
  const int money = type * 9 / 2;
  const int top = title1->geometry().bottom() + kGap;
  lv->setGeometry(kGap, top, inner, screen_->height() - top - help - money - 3 * kGap);
  lv->divideRows(type * 19 / 10, type * 2);
  const int statusTop = lv->geometry().bottom() + kGap;
  txtmoney->setGeometry(kGap, statusTop, inner, money);
  layOutStatus();
  frmBot->setGeometry(kGap, statusTop + money + kGap, inner, help);
  ViewF->setGeometry(0, 0, inner, help);
}

void SellControls::showMember(const QString& text) {
  lblViewMember->showText(text);
  lblViewMember->setVisible(!text.isEmpty());
  layOutStatus();
}

// A member's lines take the left two fifths of the status line, and its text the rest.
void SellControls::layOutStatus() {
  const QRect status = txtmoney->geometry();
  const int member = lblViewMember->text().isEmpty() ? 0 : status.width() * 2 / 5;
  txtmoney->setContentsMargins(member, 0, 0, 0);
  lblViewMember->setGeometry(status.x() + pixels(120), status.y() + pixels(50),
                             std::max(0, member - pixels(120)),
                             std::max(0, status.height() - 2 * pixels(50)));
  lblViewMember->raise();
}

// The next second needs no other room.
void SellControls::showTime(const QString& text) {
  const bool fits = text.size() == title2->text().size();
  title2->setText(text);
  if (!fits) layOutHeadings();
}

// The previous bill goes on in a second line of small type where the screen is narrow.
void SellControls::layOutHeadings() {
  constexpr int kSmall = 12;
  const int width = screen_->width();
  title->ensurePolished();
  title->setGeometry(kGap, kGap / 2, width - 2 * kGap, title->fontMetrics().height());
  title2->ensurePolished();
  const int second = title->geometry().bottom() + kGap;
  QFont small = title3->font();
  small.setPixelSize(kSmall);
  const QSize clock = title2->sizeHint();
  const int height = std::max(clock.height(), 2 * QFontMetrics(small).height());
  title2->setGeometry((width - clock.width()) / 2, second, clock.width(), height);
  const int side = title2->x() - 3 * kGap;
  title3->setSmallest(kSmall);
  title1->setGeometry(kGap, second, side, height);
  title3->setGeometry(width - kGap - side, second, side, height);
}
