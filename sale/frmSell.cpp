#include "sale/frmSell.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QEventLoop>
#include <QFrame>
#include <QGuiApplication>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <array>

#include "app/posMod.h"
#include "checkout/frmEndSell.h"
#include "platform/Twips.h"
#include "platform/VirtualKey.h"
#include "sale/BillModel.h"
#include "sale/BillView.h"
#include "sale/FittedLabel.h"
#include "sale/KeyHelp.h"
#include "sale/SellStyle.h"
#include "sale/frmRecord.h"
#include "shell/frmInput.h"
#include "shell/frmMenu.h"
#include "store/StoreError.h"

namespace {

constexpr int kGap = pixels(100);
constexpr int kClockInterval = 1000;  // milliseconds
// So long without a key press after a sale, and nobody waits for the log to be tidied.
constexpr int kIdleInterval = 1500;

// Column widths in tenths of the type size; the name takes the rest. The first one is where codes
// are typed: it holds the thirteen digits of a barcode.
constexpr std::array<int, BillRow::kColumns> kColumnTenths = {90, 88, 0,  46, 38, 34,
                                                              52, 48, 40, 30, 48};

template <class Widget>
Widget* named(const char* name, QWidget* parent) {
  auto* widget = new Widget(parent);
  widget->setObjectName(name);
  return widget;
}

}  // namespace

frmSell::frmSell(posMod& pos, SaleSession::Openers openers, std::function<void()> endProgram,
                 QWidget* parent)
    : QWidget(parent, Qt::Window),
      pos_(pos),
      openers_(std::move(openers)),
      endProgram_(std::move(endProgram)),
      title_(named<QLabel>("title", this)),
      title1_(named<FittedLabel>("title1", this)),
      title2_(named<QLabel>("title2", this)),
      title3_(named<FittedLabel>("title3", this)),
      lv_(named<BillView>("lv", this)),
      t_(named<QLineEdit>("t", lv_->viewport())),
      txtmoney_(named<FittedLabel>("txtmoney", this)),
      lblViewMember_(named<QLabel>("lblViewMember", this)),
      frmBot_(named<QFrame>("frmBot", this)),
      ViewF_(named<KeyHelp>("ViewF", frmBot_)) {
  setObjectName("frmSell");
  setWindowTitle(QGuiApplication::applicationDisplayName());
  setWindowModality(Qt::ApplicationModal);
  setAttribute(Qt::WA_StyledBackground);
  setFocusProxy(t_);
  title3_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  txtmoney_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lblViewMember_->setWordWrap(true);
  lblViewMember_->setTextFormat(Qt::PlainText);
  lblViewMember_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  ViewF_->setText(
      tr("ESC=退出 Enter=结账 F2=会员卡 F3=增加会员 F4删除最后一行 F5挂单 F6取单 "
         "F8补打小票查询销售 F9会员充值 F12=整单撤消 方向箭头改数量折扣"));
  makeList();

  t_->setContextMenuPolicy(Qt::NoContextMenu);
  t_->setInputMethodHints(Qt::ImhPreferLatin | Qt::ImhNoPredictiveText);
  t_->installEventFilter(this);
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
      applyStyle();
    };
  }
}

frmSell::~frmSell() = default;

// The list never has the focus: keys always reach the input line, which lies in it.
void frmSell::makeList() {
  lv_->setFocusPolicy(Qt::NoFocus);
  lv_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lv_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lv_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  lv_->setCornerButtonEnabled(false);
  lv_->verticalHeader()->hide();
  lv_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  lv_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  lv_->horizontalHeader()->setHighlightSections(false);
  lv_->horizontalHeader()->setSectionsClickable(false);
  connect(lv_, &QTableView::clicked, this, [this] { session_->listClicked(); });
}

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
  lv_->setModel(model_.get());
  myMenu_ = std::make_unique<frmMenu>(pos_.gKeyBoard, this);
  myMenu_->setObjectName("myMenu");
  myMenu_->setAlignment(frmMenu::kCentre);
  for (const auto& [key, caption] : session_->menuEntries()) myMenu_->AddMenu(caption, key);
  myMenu_->MenuClick = [this](const MenuItem& Menu) { session_->menu(Menu.Key); };
  myMenu_->closed = [this] { endProgram(); };

  const QString shop = QString::fromStdString(pos_.gSysParam.ShopName());
  title_->setText(shop.isEmpty() ? tr("收  银  台") : shop);
  setTitle1(tr("单号：") + tr("收银员："));
  setTitle3({});
  setStatus({});
  setMemberInfo({});
  showTime();
  applyStyle();
  // At its full size before the first message of the opening is placed over it, with no input line
  // yet.
  t_->resize(0, 0);
  setGeometry(this->screen()->geometry());
  showFullScreen();
  activateWindow();
  t_->setFocus();
  Timer1_.start();
}

void frmSell::finish() {
  Timer1_.stop();
  idle_.stop();
  hide();
  lv_->setModel(nullptr);
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
  title2_->setText(tr("当前时间：") + QString::fromStdString(longTime(pos_.clock())));
}

bool frmSell::eventFilter(QObject* watched, QEvent* event) {
  if (watched != t_ || !session_ || !session_->state.curBill)
    return QWidget::eventFilter(watched, event);
  if (event->type() == QEvent::KeyPress) return keyPressed(*static_cast<QKeyEvent*>(event));
  // No shortcut is looked for before a typed character.
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  if (event->type() == QEvent::InputMethod) {
    const auto& composed = *static_cast<QInputMethodEvent*>(event);
    if (!composed.preeditString().isEmpty() || !composed.commitString().isEmpty())
      session_->textComing();
  }
  return false;
}

bool frmSell::keyPressed(QKeyEvent& event) {
  if (ended_) return true;
  const int code = virtualKey(event);
  if (event.isAutoRepeat() && !session_->mayRepeat(code)) return true;
  idle_.stop();
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
  applyStyle();
}

// Who changes the selection places the editor, too.
void frmSell::rowsChanged() {
  model_->rowsChanged();
}

// What has changed in the list is painted first: it is what the cashier waits for.
void frmSell::PlaceEditor() {
  SaleState& state = session_->state;
  t_->setUpdatesEnabled(false);
  moveEditor();
  lv_->paintNow();
  const BillRow& row = state.rows[static_cast<std::size_t>(state.selected)];
  setInput(QString::fromStdString(row.cells[static_cast<std::size_t>(state.editColumn())]));
  t_->setUpdatesEnabled(true);
  state.clearOnKey = true;
}

void frmSell::moveEditor() {
  if (!session_ || session_->state.selected < 0) return;
  const SaleState& state = session_->state;
  lv_->showCell(state.selected, state.editColumn());
  const QModelIndex cell = model_->index(state.selected, state.editColumn());
  const Qt::Alignment side(cell.data(Qt::TextAlignmentRole).toInt());
  if (t_->alignment() != side) t_->setAlignment(side);
  t_->setGeometry(lv_->insideOfCurrentCell());
}

QString frmSell::input() const {
  return t_->text();
}

// Selected, so that what is typed next replaces a value shown for correction.
void frmSell::setInput(const QString& text) {
  t_->setText(text);
  if (!text.isEmpty()) t_->selectAll();
}

void frmSell::setTitle1(const QString& text) {
  title1_->showText(text);
}

void frmSell::setTitle3(const QString& text) {
  title3_->showText(text);
}

void frmSell::setStatus(const QString& text) {
  txtmoney_->showText(text);
}

void frmSell::setMemberInfo(const QString& text) {
  lblViewMember_->setText(text);
  lblViewMember_->setVisible(!text.isEmpty());
  layOut();
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

void frmSell::applyStyle() {
  const int type = sellTypeSize(width());
  setStyleSheet(sellStyleSheet(pos_.gPosSet, type));
  t_->ensurePolished();
  t_->setAttribute(Qt::WA_OpaquePaintEvent);  // else each typed key paints the list beneath it
  title1_->setLargest(type);
  title3_->setLargest(type);
  txtmoney_->setIndent(type / 3);
  txtmoney_->setLargest(type * 5 / 2);
  txtmoney_->setSmallest(type);
  lv_->verticalHeader()->setDefaultSectionSize(type * 19 / 10);
  lv_->horizontalHeader()->setFixedHeight(type * 2);
  layOut();
}

void frmSell::layOut() {
  const int type = sellTypeSize(width());
  const int inner = width() - 2 * kGap;
  title_->adjustSize();
  title_->move((width() - title_->width()) / 2, kGap / 2);
  title2_->adjustSize();
  const int second = title_->geometry().bottom() + kGap;
  title2_->move((width() - title2_->width()) / 2, second);
  const int side = title2_->x() - 3 * kGap;
  title1_->setGeometry(kGap, second, side, title2_->height());
  title3_->setGeometry(width() - kGap - side, second, side, title2_->height());

  const int help = ViewF_->heightForWidth(inner) + kGap;
  const int money = type * 9 / 2;
  const int top = title1_->geometry().bottom() + kGap;
  lv_->setGeometry(kGap, top, inner, height() - top - help - money - 3 * kGap);
  const int statusTop = lv_->geometry().bottom() + kGap;
  // A member's lines take the left two fifths of the status line, and its text the rest.
  const int member = lblViewMember_->text().isEmpty() ? 0 : inner * 2 / 5;
  txtmoney_->setContentsMargins(member, 0, 0, 0);
  txtmoney_->setGeometry(kGap, statusTop, inner, money);
  const int memberHeight = 3 * lblViewMember_->fontMetrics().lineSpacing();
  lblViewMember_->setGeometry(kGap + pixels(120), statusTop + pixels(50), member, memberHeight);
  lblViewMember_->raise();
  frmBot_->setGeometry(kGap, statusTop + money + kGap, inner, help);
  ViewF_->setGeometry(0, 0, inner, help);
  setColumnWidths();
  moveEditor();
}

void frmSell::setColumnWidths() {
  if (!model_) return;
  const int type = sellTypeSize(width());
  int rest = lv_->width() - lv_->verticalScrollBar()->sizeHint().width() - 2 * lv_->frameWidth();
  for (int column = 0; column < BillRow::kColumns; ++column) {
    const int size = kColumnTenths[static_cast<std::size_t>(column)] * type / 10;
    lv_->setColumnWidth(column, size);
    rest -= size;
  }
  lv_->setColumnWidth(BillRow::kName, rest);
}
