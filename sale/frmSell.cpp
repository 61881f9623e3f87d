#include "sale/frmSell.h"

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QEventLoop>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScopeGuard>
#include <QScopedValueRollback>

#include "app/SyncProgram.h"
#include "app/posMod.h"
#include "checkout/frmEndSell.h"
#include "platform/QtText.h"
#include "platform/VirtualKey.h"
#include "sale/BillModel.h"
#include "sale/BillView.h"
#include "sale/FittedLabel.h"
#include "sale/InputLine.h"
#include "sale/frmRecord.h"
#include "shell/dlgApproval.h"
#include "shell/frmInput.h"
#include "shell/frmMenu.h"

namespace {

constexpr int kClockInterval = 1000;  // milliseconds

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
  connect(&Timer1_, &QTimer::timeout, this, &frmSell::showTime);

  // After the colour dialog the six colours are applied again.
  if (const auto colour = openers_.find("color"); colour != openers_.end()) {
    colour->second.open = [this, open = colour->second.open] {
      open();
      arrange();
    };
  }
}

frmSell::~frmSell() = default;

void frmSell::showPractice() {
  setProperty("practice", true);
}

void frmSell::openModal() {
  begin();
  const auto closing = qScopeGuard([this] { finish(); });
  if (!session_->open() || ended_) return;
  QEventLoop loop;
  const QScopedValueRollback running(loop_, &loop);
  loop.exec();
}

void frmSell::begin() {
  SaleScreen& screen = *this;
  session_ = std::make_unique<SaleSession>(pos_, screen, openers_);
  model_ = std::make_unique<BillModel>();
  controls_.lv->setModel(model_.get());
  myMenu_ = std::make_unique<frmMenu>(pos_.gKeyBoard, this);
  myMenu_->setObjectName("myMenu");
  myMenu_->setAlignment(frmMenu::kCentre);
  for (const auto& [caption, key] : session_->menuEntries()) myMenu_->AddMenu(caption, key);
  myMenu_->MenuClick = [this](const MenuItem& Menu) { session_->menu(Menu.Key); };
  myMenu_->closed = [this] { endProgram(); };

  controls_.title->showText(heading());
  controls_.title1->showText(tr("单号：收银员："));
  controls_.title3->showText({});
  controls_.txtmoney->showText({});
  controls_.showMember({});
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

// The shop's name of a till to practise at is what its papers say, which are Chinese.
QString frmSell::heading() const {
  if (property("practice").toBool()) return tr("练习，不入账");
  const QString shop = qtText(pos_.gSysParam.ShopName());
  return shop.isEmpty() ? tr("收  银  台") : shop;
}

void frmSell::finish() {
  Timer1_.stop();
  hide();
  controls_.lv->setModel(nullptr);
  model_.reset();
  myMenu_.reset();
  session_.reset();
}

void frmSell::ShowSaleMenu() {
  myMenu_->ShowMenu(0);
  afterCommand();
}

void frmSell::showTime() {
  const DateTime now = pos_.clock();
  const QString time = qtText(longTime(now));
  const QString state = pos_.sync ? pos_.sync->stateText(now) : QString();
  controls_.showTime(state.isEmpty() ? tr("当前时间：%1").arg(time)
                                     : tr("%1　%2", "time, state of the line").arg(time, state));
}

bool frmSell::eventFilter(QObject* watched, QEvent* event) {
  if (watched != controls_.t || !session_ || !session_->sale().bill())
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
      session_->textComing(controls_.t->text());
    }
  }
  return false;
}

bool frmSell::keyPressed(QKeyEvent& event) {
  if (ended_) return true;
  const int code = virtualKey(event);
  if (event.isAutoRepeat() && !session_->mayRepeat(code, controls_.t->text())) return true;
  controls_.lv->showCurrent();
  if (session_->key(code, controls_.t->text())) {
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
  if (session_->left() && loop_ != nullptr) loop_->quit();
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
  controls_.arrange(pos_.gPosSet, pos_.gKeyBoard);
  moveEditor();
}

// What has changed in the list is painted first: it is what the cashier waits for. An opaque line
// would cut its rows into pieces, which cost a quarter more.
void frmSell::show(const SalePicture& picture) {
  controls_.t->setUpdatesEnabled(false);
  controls_.t->setAttribute(Qt::WA_OpaquePaintEvent, false);
  model_->show(picture.rows);
  shown_ = picture;
  shown_.rows = {};
  moveEditor();
  controls_.lv->paintNow();
  controls_.t->setAttribute(Qt::WA_OpaquePaintEvent);
  showInput(picture);
  controls_.t->setUpdatesEnabled(true);
  controls_.title1->showText(picture.title1);
  controls_.title3->showText(picture.title3);
  controls_.txtmoney->showText(picture.status);
  controls_.showMember(picture.memberInfo);
}

// Given to be corrected, it is selected, so that what is typed next replaces it.
void frmSell::showInput(const SalePicture& picture) {
  if (controls_.t->text() != picture.input) controls_.t->setText(picture.input);
  if (picture.inputIsGiven && !picture.input.isEmpty()) controls_.t->selectAll();
}

void frmSell::moveEditor() {
  if (!model_ || model_->rowCount() == 0) return;
  controls_.lv->showCell(shown_.row, shown_.column, shown_.lastColumn);
  const QModelIndex cell = model_->index(shown_.row, shown_.column);
  const Qt::Alignment side(cell.data(Qt::TextAlignmentRole).toInt());
  if (controls_.t->alignment() != side) controls_.t->setAlignment(side);
  controls_.t->setGeometry(controls_.lv->insideOfCurrentCell());
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

// Over the settlement dialog, when that is where it is asked.
Permit frmSell::leave(const Deed& deed) {
  QWidget* front = QApplication::activeModalWidget();
  return askLeave(pos_, front != nullptr ? front : this, deed);
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
