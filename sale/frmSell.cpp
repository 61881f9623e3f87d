#include "sale/frmSell.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QEventLoop>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>
#include <QScopedValueRollback>

#include "app/posMod.h"
#include "checkout/frmEndSell.h"
#include "platform/VirtualKey.h"
#include "sale/BillModel.h"
#include "sale/BillView.h"
#include "sale/FittedLabel.h"
#include "sale/frmRecord.h"
#include "shell/frmInput.h"
#include "shell/frmMenu.h"
#include "store/Connection.h"
#include "store/StoreError.h"

namespace {

constexpr int kClockInterval = 1000;  // milliseconds
// So long without a key press after a sale, and nobody waits for the log to be tidied.
constexpr int kIdleInterval = 1500;

}  // namespace

frmSell::frmSell(posMod& pos, SaleSession::Openers openers, std::function<void()> endProgram,
                 QWidget* parent)
    : QWidget(parent, Qt::Window),
      pos_(pos),
      openers_(std::move(openers)),
      endProgram_(std::move(endProgram)) {
  setObjectName("frmSell");
  setWindowTitle(QGuiApplication::applicationDisplayName());
  setWindowModality(Qt::ApplicationModal);
  setAttribute(Qt::WA_StyledBackground);
  setFocusProxy(controls_.t);
  connect(controls_.lv, &BillView::clicked, this, [this] { session_->listClicked(); });
  controls_.t->installEventFilter(this);
  Timer1_.setObjectName("Timer1");
  Timer1_.setInterval(kClockInterval);
  idle_.setInterval(kIdleInterval);
  idle_.setSingleShot(true);
  connect(&Timer1_, &QTimer::timeout, this, &frmSell::showTime);
  connect(&idle_, &QTimer::timeout, this, &frmSell::checkpoint);

  // After the colour dialog the six colours are applied again.
  if (const auto colour = openers_.find("color"); colour != openers_.end()) {
    colour->second = [this, open = colour->second] {
      open();
      arrange();
    };
  }
}

frmSell::~frmSell() = default;

void frmSell::openModal() {
  begin();
  const auto closing = qScopeGuard([this] { finish(); });
  if (!session_->open() || ended_) return;
  settled_ = session_->state.lastBill.get();
  QEventLoop loop;
  const QScopedValueRollback running(loop_, &loop);
  loop.exec();
}

void frmSell::begin() {
  SaleScreen& screen = *this;
  session_ = std::make_unique<SaleSession>(pos_, screen, openers_);
  model_ = std::make_unique<BillModel>(session_->state);
  controls_.lv->setModel(model_.get());
  myMenu_ = std::make_unique<frmMenu>(pos_.gKeyBoard, this);
  myMenu_->setObjectName("myMenu");
  myMenu_->setAlignment(frmMenu::kCentre);
  for (const auto& [key, caption] : session_->menuEntries()) myMenu_->AddMenu(caption, key);
  myMenu_->MenuClick = [this](const MenuItem& Menu) { session_->menu(Menu.Key); };
  myMenu_->closed = [this] { endProgram(); };

  const QString shop = QString::fromStdString(pos_.gSysParam.ShopName());
  controls_.title->showText(shop.isEmpty() ? tr("收  银  台") : shop);
  setTitle1(tr("单号：") + tr("收银员："));
  setTitle3({});
  setStatus({});
  setMemberInfo({});
  showTime();
  arrange();
  // At its full size before the first message of the opening is placed over it, with no input line
  // yet.
  controls_.t->resize(0, 0);
  setGeometry(this->screen()->geometry());
  showFullScreen();
  activateWindow();
  controls_.t->setFocus();
  Timer1_.start();
}

void frmSell::finish() {
  Timer1_.stop();
  idle_.stop();
  hide();
  controls_.lv->setModel(nullptr);
  model_.reset();
  myMenu_.reset();
  session_.reset();
}

void frmSell::ShowSaleMenu() {
  session_->state.menuIdle = false;
  myMenu_->ShowMenu(0);
  session_->state.menuIdle = true;
  afterCommand();
}

void frmSell::showTime() {
  controls_.title2->setText(tr("当前时间：") + QString::fromStdString(longTime(pos_.clock())));
}

bool frmSell::eventFilter(QObject* watched, QEvent* event) {
  if (watched != controls_.t || !session_ || !session_->state.curBill)
    return QWidget::eventFilter(watched, event);
  if (event->type() == QEvent::KeyPress) return keyPressed(*static_cast<QKeyEvent*>(event));
  // No shortcut is looked for before a typed character.
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  if (event->type() == QEvent::InputMethod) {
    const auto& composed = *static_cast<QInputMethodEvent*>(event);
    if (!composed.preeditString().isEmpty() || !composed.commitString().isEmpty()) {
      controls_.lv->showCurrent();
      session_->textComing();
    }
  }
  return false;
}

bool frmSell::keyPressed(QKeyEvent& event) {
  if (ended_) return true;
  const int code = virtualKey(event);
  if (event.isAutoRepeat() && !session_->mayRepeat(code)) return true;
  idle_.stop();
  controls_.lv->showCurrent();
  if (session_->key(code)) {
    afterCommand();
    return true;
  }
  if (code != vk::kMenu) return false;
  ShowSaleMenu();
  return true;
}

// Not every window system makes the window under a closed modal one active again.
void frmSell::afterCommand() {
  if (!isActiveWindow()) activateWindow();
  if (session_->left() && loop_ != nullptr) {
    loop_->quit();
    return;
  }
  const ClsSell* previous = session_->state.lastBill.get();
  if (previous != settled_) idle_.start();
  settled_ = previous;
}

// A log that cannot be tidied now loses nothing; the next sale will say what is wrong with the
// file.
void frmSell::checkpoint() {
  try {
    pos_.gConn->checkpoint();
  } catch (const StoreError&) {
    return;
  }
}

void frmSell::closeEvent(QCloseEvent* event) {
  if (!session_ || ended_) return QWidget::closeEvent(event);
  event->ignore();
  session_->exit();
  afterCommand();
}

// The menu key arrives as a key press already.
void frmSell::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() == QContextMenuEvent::Mouse && session_ && !ended_) ShowSaleMenu();
}

void frmSell::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  arrange();
}

void frmSell::arrange() {
  controls_.arrange(pos_.gPosSet);
  moveEditor();
}

// Who changes the selection places the editor, too.
void frmSell::rowsChanged() {
  model_->rowsChanged();
}

// What has changed in the list is painted first: it is what the cashier waits for.
void frmSell::PlaceEditor() {
  SaleState& state = session_->state;
  controls_.t->setUpdatesEnabled(false);
  moveEditor();
  controls_.lv->paintNow();
  const BillRow& row = state.rows[static_cast<std::size_t>(state.selected)];
  setInput(QString::fromStdString(row.cells[static_cast<std::size_t>(state.editColumn())]));
  controls_.t->setUpdatesEnabled(true);
  state.clearOnKey = true;
}

void frmSell::moveEditor() {
  if (!session_ || session_->state.selected < 0) return;
  const SaleState& state = session_->state;
  const bool entersCode = state.selected + 1 == static_cast<int>(state.rows.size()) &&
                          state.editColumn() == BillRow::kNumber;
  // A barcode needs more room than the row's number, and the cell of its code is still empty.
  controls_.lv->showCell(state.selected, state.editColumn(),
                         entersCode ? BillRow::kCode : state.editColumn());
  const QModelIndex cell = model_->index(state.selected, state.editColumn());
  const Qt::Alignment side(cell.data(Qt::TextAlignmentRole).toInt());
  if (controls_.t->alignment() != side) controls_.t->setAlignment(side);
  controls_.t->setGeometry(controls_.lv->insideOfCurrentCell());
}

QString frmSell::input() const {
  return controls_.t->text();
}

// Selected, so that what is typed next replaces a value shown for correction.
void frmSell::setInput(const QString& text) {
  controls_.t->setText(text);
  if (!text.isEmpty()) controls_.t->selectAll();
}

void frmSell::setTitle1(const QString& text) {
  controls_.title1->showText(text);
}

void frmSell::setTitle3(const QString& text) {
  controls_.title3->showText(text);
}

void frmSell::setStatus(const QString& text) {
  controls_.txtmoney->showText(text);
}

void frmSell::setMemberInfo(const QString& text) {
  controls_.showMember(text);
}

void frmSell::ShowMessage(const QString& text) {
  messages_.show(text);
}

void frmSell::messageBox(const QString& text, const QString& title) {
  messages_.box(text, title, title.isEmpty() ? BoxIcon::kNone : BoxIcon::kExclamation);
}

bool frmSell::askYesNo(const QString& text, const QString& title, bool yesPreselected) {
  return messages_.ask(text, title, yesPreselected);
}

QString frmSell::prompt(const QString& title, const QString& message) {
  if (input_ == nullptr) input_ = new frmInput(pos_.gKeyBoard, this);
  return input_->init(title, message);
}

int frmSell::choose(int count, const std::function<QString(int position)>& caption) {
  frmMenu menu(pos_.gKeyBoard, this);
  menu.closed = [this] { endProgram(); };
  menu.AddMenus(count, caption);
  return menu.ShowMenu(0).toInt() - 1;
}

std::int32_t frmSell::chooseHeldBill(const std::vector<std::shared_ptr<ClsSell>>& bills) {
  if (record_ == nullptr) record_ = new frmRecord(pos_.gKeyBoard, this);
  return record_->Load(bills, pos_.clock());
}

bool frmSell::settle(Settlement& settlement) {
  if (endSell_ == nullptr) endSell_ = new frmEndSell(pos_.gKeyBoard, this);
  return endSell_->init(settlement);
}

void frmSell::endProgram() {
  ended_ = true;
  endProgram_();
  if (loop_ != nullptr) loop_->quit();
}
