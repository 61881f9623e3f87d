#include "shell/ScreenFit.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLayout>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>

namespace {

/// Of a dialog, in the style sheet.
constexpr int kBorder = 2;

/// Keys are the dialog's: it is scrolled by moving the focus.
class Scroller : public QScrollArea {
 public:
  using QScrollArea::QScrollArea;

 protected:
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
};

QSize roomFor(const QDialog& dialog) {
  QSize room = dialog.screen()->availableSize();
  const bool isFramed = !dialog.windowFlags().testFlag(Qt::FramelessWindowHint);
  if (isFramed) room.rheight() -= dialog.style()->pixelMetric(QStyle::PM_TitleBarHeight);
  return room;
}

bool fits(const QSize& size, const QSize& room) {
  return size.width() <= room.width() && size.height() <= room.height();
}

bool isFixed(const QDialog& dialog) {
  return dialog.layout() != nullptr && dialog.layout()->sizeConstraint() == QLayout::SetFixedSize;
}

/// Moves the controls with their layout into an area that scrolls.
void makeScroll(QDialog& dialog, const QSize& room) {
  const bool isSized = dialog.testAttribute(Qt::WA_Resized) && !isFixed(dialog);
  const QSize wanted = isSized ? dialog.size() : dialog.layout()->totalSizeHint();
  auto* area = new Scroller(&dialog);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(!isFixed(dialog));
  auto* content = new QWidget;
  area->setWidget(content);
  content->setLayout(dialog.layout());
  content->setAutoFillBackground(false);
  area->viewport()->setAutoFillBackground(false);
  auto* around = new QVBoxLayout(&dialog);
  around->setContentsMargins(kBorder, kBorder, kBorder, kBorder);
  around->addWidget(area);
  QObject::connect(qApp, &QApplication::focusChanged, area, [area](QWidget*, QWidget* now) {
    if (now != nullptr && area->widget()->isAncestorOf(now)) area->ensureWidgetVisible(now);
  });
  dialog.setMinimumSize(0, 0);
  dialog.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  const QSize bars(area->verticalScrollBar()->sizeHint().width(),
                   area->horizontalScrollBar()->sizeHint().height());
  dialog.resize((wanted + bars + QSize(2 * kBorder, 2 * kBorder)).boundedTo(room));
}

/// The smallest size at which all controls are seen whole.
QSize smallestSize(const QDialog& dialog) {
  const QLayout* layout = dialog.layout();
  if (layout == nullptr) return dialog.minimumSize();
  return isFixed(dialog) ? layout->totalSizeHint() : layout->totalMinimumSize();
}

void fit(QDialog& dialog) {
  // The sizes depend on the style sheet.
  dialog.ensurePolished();
  for (const QWidget* control : dialog.findChildren<QWidget*>()) control->ensurePolished();
  const QSize room = roomFor(dialog);
  if (!fits(smallestSize(dialog), room)) {
    makeScroll(dialog, room);
  } else if (!fits(dialog.size(), room)) {
    dialog.resize(dialog.size().boundedTo(room));
  }
}

}  // namespace

ScreenFit::ScreenFit(QApplication* application) : QObject(application) {
  application->installEventFilter(this);
}

// The window is made right before it is shown. A message box lays itself out.
bool ScreenFit::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WinIdChange) {
    auto* dialog = qobject_cast<QDialog*>(watched);
    const bool isOurs = dialog != nullptr && qobject_cast<QMessageBox*>(dialog) == nullptr;
    if (isOurs) fit(*dialog);
  }
  return QObject::eventFilter(watched, event);
}
