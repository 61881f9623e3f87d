#include "shell/ControlKeys.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

#include "app/KeyBoard.h"
#include "platform/VirtualKey.h"

namespace {

bool isTextField(const QObject* control) {
  return qobject_cast<const QLineEdit*>(control) || qobject_cast<const QAbstractSpinBox*>(control);
}

void moveRow(QAbstractItemView& list, int by) {
  const QModelIndex root = list.rootIndex();
  const int last = list.model() ? list.model()->rowCount(root) - 1 : -1;
  if (last < 0) return;
  const QModelIndex current = list.currentIndex();
  const int row = current.isValid() ? std::clamp(current.row() + by, 0, last) : 0;
  list.setCurrentIndex(list.model()->index(row, std::max(0, current.column()), root));
}

}  // namespace

ControlKeys::ControlKeys(QApplication* application, const KeyBoard& keys)
    : QObject(application), keys_(keys) {
  application->installEventFilter(this);
}

bool ControlKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ContextMenu) {
    const auto& asked = *static_cast<QContextMenuEvent*>(event);
    return asked.reason() == QContextMenuEvent::Keyboard && isTextField(watched);
  }
  if (event->type() != QEvent::KeyPress) return false;
  auto* list = qobject_cast<QAbstractItemView*>(watched);
  const int rows = list ? rowsFor(*static_cast<QKeyEvent*>(event)) : 0;
  if (rows != 0) moveRow(*list, rows);
  return rows != 0;
}

int ControlKeys::rowsFor(const QKeyEvent& press) const {
  const int key = virtualKey(press);
  if (key == 0) return 0;
  if (key == keys_.mUp) return press.key() == Qt::Key_Up ? 0 : -1;
  if (key == keys_.mDown) return press.key() == Qt::Key_Down ? 0 : 1;
  return 0;
}
