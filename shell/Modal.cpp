#include "shell/Modal.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QWidget>

#include "shell/ShownText.h"

namespace {

QMessageBox::Icon systemIcon(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::kInformation:
      return QMessageBox::Information;
    case BoxIcon::kQuestion:
      return QMessageBox::Question;
    case BoxIcon::kExclamation:
      return QMessageBox::Warning;
    case BoxIcon::kNone:
      break;
  }
  return QMessageBox::NoIcon;
}

/// Texts are shown as they are: what was typed is never taken for markup.
void fill(QMessageBox& box, const QString& text, const QString& title, BoxIcon icon) {
  box.setObjectName("messageBox");
  box.setIcon(systemIcon(icon));
  box.setWindowTitle(title.isEmpty() ? QGuiApplication::applicationDisplayName() : title);
  box.setTextFormat(Qt::PlainText);
  box.setText(shownText(text));
}

/// The letter in brackets presses the button too.
QPushButton* addButton(QMessageBox& box, const char* caption, QMessageBox::ButtonRole role) {
  return box.addButton(QCoreApplication::translate("Modal", caption), role);
}

}  // namespace

void messageBox(QWidget* parent, const QString& text, const QString& title) {
  messageBox(parent, text, title, BoxIcon::kNone);
}

void messageBox(QWidget* parent, const QString& text, const QString& title, BoxIcon icon) {
  QMessageBox box(parent);
  fill(box, text, title, icon);
  QPushButton* ok = addButton(box, QT_TRANSLATE_NOOP("Modal", "确定"), QMessageBox::AcceptRole);
  box.setDefaultButton(ok);
  box.setEscapeButton(ok);
  box.exec();
}

bool askYesNo(QWidget* parent, const QString& text, const QString& title, bool yesPreselected) {
  QMessageBox box(parent);
  fill(box, text, title, BoxIcon::kQuestion);
  QPushButton* yes = addButton(box, QT_TRANSLATE_NOOP("Modal", "是(&Y)"), QMessageBox::YesRole);
  QPushButton* no = addButton(box, QT_TRANSLATE_NOOP("Modal", "否(&N)"), QMessageBox::NoRole);
  box.setDefaultButton(yesPreselected ? yes : no);
  box.setEscapeButton(no);
  box.exec();
  return box.clickedButton() == yes;
}

void centreOnScreen(QWidget& window) {
  const QWidget* parent = window.parentWidget();
  const QRect screen = window.screen()->availableGeometry();
  const QRect around = parent && parent->isVisible() ? parent->window()->frameGeometry() : screen;
  QRect place = window.frameGeometry();
  place.moveCenter(around.center());
  place.moveRight(qMin(place.right(), screen.right()));
  place.moveBottom(qMin(place.bottom(), screen.bottom()));
  place.moveLeft(qMax(place.left(), screen.left()));
  place.moveTop(qMax(place.top(), screen.top()));
  window.move(place.topLeft());
}
