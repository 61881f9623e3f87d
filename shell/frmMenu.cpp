#include "shell/frmMenu.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <QVBoxLayout>

#include "app/KeyBoard.h"
#include "platform/Twips.h"
#include "platform/VirtualKey.h"
#include "shell/MenuEntries.h"
#include "shell/Modal.h"

namespace {

constexpr int kBorder = 2;
constexpr int kMostMeasured = 200;
constexpr int kScreenMargin = 8;  // left free between the menu and the edge of the screen

Qt::Alignment textAlignment(int alignment) {
  switch (alignment) {
    case frmMenu::kRight:
      return Qt::AlignRight;
    case frmMenu::kCentre:
      return Qt::AlignHCenter;
    default:
      return Qt::AlignLeft;
  }
}

}  // namespace

frmMenu::frmMenu(const KeyBoard& keys, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint),
      keys_(keys),
      heading_(new QLabel),
      footer_(new QLabel),
      entries_(new MenuEntries) {
  setObjectName("frmMenu");
  setContextMenuPolicy(Qt::PreventContextMenu);
  heading_->setObjectName("lblMenuHeading");
  heading_->setAlignment(Qt::AlignCenter);
  entries_->colours = {palette().color(QPalette::Window), palette().color(QPalette::ButtonText),
                       QColor(0, 0, 0xC0), QColor(Qt::white)};
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kBorder, kBorder, kBorder, kBorder);
  layout->setSpacing(0);
  layout->addWidget(heading_);
  layout->addWidget(entries_, 1);
  footer_->setObjectName("lblMenuFooter");
  footer_->setTextFormat(Qt::PlainText);
  footer_->setAlignment(Qt::AlignCenter);
  footer_->hide();
  layout->addWidget(footer_);
  connect(entries_, &MenuEntries::pointedAt, entries_, &MenuEntries::setCurrent);
  connect(entries_, &MenuEntries::clicked, this, &frmMenu::choose);
}

void frmMenu::AddMenu(const QString& MenuText, const QString& Key) {
  entries_->add({MenuText, Key, textAlignment(alignment_), pixels(space_)});
}

void frmMenu::AddMenus(int count, const std::function<QString(int position)>& caption) {
  const bool measured = count <= kMostMeasured;
  for (int position = 0; position < count; ++position) {
    AddMenu(measured ? caption(position) : QString(), QString::number(position + 1));
  }
  if (!measured) entries_->setLateTitles(caption);
}

QString frmMenu::ShowMenu(int Mode) {
  if (entryCount() == 0) {
    messageBox(parentWidget(), tr("无菜单项"));
    return {};
  }
  mode_ = Mode;
  chosen_ = -1;
  placeOnScreen();
  exec();
  if (chosen_ < 0) return {};
  const MenuItem item{entries_->title(chosen_), entries_->entry(chosen_).key, chosen_};
  // What an entry opens may be the end of this menu; nothing of it is touched after the call.
  const auto notify = MenuClick;
  if (notify) notify(item);
  return item.Key;
}

void frmMenu::setFooter(const QString& text) {
  footer_->setText(text);
  footer_->setVisible(!text.isEmpty());
}

void frmMenu::placeOnScreen() {
  const QRect room = screen()->availableGeometry().adjusted(kScreenMargin, kScreenMargin,
                                                            -kScreenMargin, -kScreenMargin);
  heading_->setText(windowTitle());
  heading_->setVisible(!windowTitle().isEmpty());
  QSize wanted = entries_->measure(room.width() - 2 * kBorder);
  for (const QLabel* label : {heading_, footer_}) {
    if (label->isHidden()) continue;
    const QSize size = label->sizeHint();
    wanted = QSize(qMax(wanted.width(), size.width()), wanted.height() + size.height());
  }
  resize((wanted + QSize(2 * kBorder, 2 * kBorder)).boundedTo(room.size()));
  layout()->activate();
  QRect place(pos(), size());
  if (!placed_) place.moveCenter(room.center());
  place.moveLeft(qBound(room.left(), place.left(), room.right() + 1 - width()));
  place.moveTop(qBound(room.top(), place.top(), room.bottom() + 1 - height()));
  move(place.topLeft());
  entries_->scrollToCurrent();
}

// Every key is compared with the map in this order, so that of two meanings the first one wins.
void frmMenu::keyPressEvent(QKeyEvent* event) {
  const int key = keys_.meaning(virtualKey(*event));
  if (key == 0) return;
  if (key == keys_.mUp) {
    moveHighlight(-1);
  } else if (key == keys_.mDown) {
    moveHighlight(1);
  } else if (key == keys_.mEnter) {
    // A key held down since before the menu came up chooses nothing.
    if (!event->isAutoRepeat()) choose(currentIndex());
  } else if (key == keys_.mEsc) {
    if (mode_ == 0) reject();
  } else if ((key == vk::kMenu || key == vk::kF10) && furtherMenu) {
    furtherMenu();
  }
}

void frmMenu::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton && furtherMenu) furtherMenu();
}

void frmMenu::closeEvent(QCloseEvent* event) {
  event->accept();
  reject();
  if (closed) closed();
}

void frmMenu::moveHighlight(int step) {
  entries_->setCurrent((currentIndex() + step + entryCount()) % entryCount());
}

void frmMenu::choose(int index) {
  entries_->setCurrent(index);
  chosen_ = index;
  accept();
}

int frmMenu::entryCount() const {
  return entries_->count();
}
int frmMenu::currentIndex() const {
  return entries_->current();
}

int frmMenu::Alignment() const {
  return alignment_;
}
void frmMenu::setAlignment(int alignment) {
  alignment_ = alignment;
}
int frmMenu::Space() const {
  return space_;
}
void frmMenu::setSpace(int twips) {
  space_ = twips;
}

int frmMenu::BoxTop() const {
  return twips(y());
}
void frmMenu::setBoxTop(int top) {
  placed_ = true;
  move(x(), pixels(top));
}
int frmMenu::BoxLeft() const {
  return twips(x());
}
void frmMenu::setBoxLeft(int left) {
  placed_ = true;
  move(pixels(left), y());
}

QColor frmMenu::mnuBack() const {
  return entries_->colours.back;
}
void frmMenu::setmnuBack(const QColor& colour) {
  entries_->colours.back = colour;
}
QColor frmMenu::mnuFore() const {
  return entries_->colours.fore;
}
void frmMenu::setmnuFore(const QColor& colour) {
  entries_->colours.fore = colour;
}
QColor frmMenu::mnuActiveBack() const {
  return entries_->colours.activeBack;
}
void frmMenu::setmnuActiveBack(const QColor& colour) {
  entries_->colours.activeBack = colour;
}
QColor frmMenu::mnuActiveFore() const {
  return entries_->colours.activeFore;
}
void frmMenu::setmnuActiveFore(const QColor& colour) {
  entries_->colours.activeFore = colour;
}
