#include "shell/frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDate>
#include <QGuiApplication>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "app/posMod.h"
#include "backups/BackupKeeper.h"
#include "base/Failure.h"
#include "base/Version.h"
#include "platform/QtText.h"
#include "platform/Twips.h"
#include "shell/BackupLine.h"
#include "shell/Modal.h"
#include "shell/Style.h"
#include "shell/dlgApproval.h"
#include "shell/frmLogin.h"
#include "shell/frmMenu.h"

namespace {

constexpr int kDateInterval = 1000;  // milliseconds
constexpr int kLongestName = 12;     // characters of the operator's name under the menu
constexpr int kVersionPixels = 12;
constexpr int kMenuGap = 12;  // between the main menu and the further one beside it
const char* const kExit = "exit";
const char* const kEnd = "end";

}  // namespace

frmMain::frmMain(posMod& pos, std::map<QString, Screen> screens, QWidget* parent)
    : QWidget(parent),
      pos_(pos),
      screens_(std::move(screens)),
      login_(new frmLogin(pos, this)),
      theMenu_(std::make_unique<frmMenu>(pos.gKeyBoard)),
      furtherMenu_(new frmMenu(pos.gKeyBoard, theMenu_.get())),  // what raises one, raises both
      Label1_(new QLabel(tr("使用光标键选择菜单,回车键执行,Esc键返回,Tab键移动选择焦点"))) {
  setObjectName("frmMain");
  setWindowTitle(QGuiApplication::applicationDisplayName());
  Label1_->setObjectName("Label1");
  Label1_->setAlignment(Qt::AlignCenter);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(24, 24, 24, 24);
  layout->addStretch();
  layout->addWidget(Label1_);
  fillMenus();
  applyColours();
  startTimer(kDateInterval);
}

frmMain::~frmMain() = default;

// The menu is always there, and this window must answer to its title bar all the same. So the menu
// is modal to no window but itself; being in front is what FocusReturn sees to.
void frmMain::fillMenus() {
  theMenu_->setWindowModality(Qt::WindowModal);
  theMenu_->setAlignment(frmMenu::kCentre);
  addScreens(*theMenu_, mainEntries());
  theMenu_->MenuClick = [this](const MenuItem& Menu) { theMenu_MenuClick(Menu); };
  theMenu_->closed = [this] { close(); };
  theMenu_->furtherMenu = [this] { showFurtherMenu(); };

  furtherMenu_->setWindowTitle(tr("更多功能"));
  furtherMenu_->setAlignment(frmMenu::kCentre);
  addScreens(*furtherMenu_, furtherEntries());
}

frmMain::Entries frmMain::mainEntries() {
  return {{tr("前 台 销 售"), "sell"},
          {tr("销 售 统 计"), "count"},
          {tr("收 银 设 置"), "posset"},
          {tr("修 改 密 码"), "editpwd"},
          {tr("退 出 系 统"), kEnd}};
}

frmMain::Entries frmMain::furtherEntries() {
  return {
      {tr("销 售 查 询"), "search"}, {tr("经 营 报 表"), "report"},  {tr("退    货"), "unsell"},
      {tr("增 加 会 员"), "addmen"}, {tr("导 入 商 品"), "goodsin"}, {tr("键 盘 设 置"), "keyset"},
      {tr("班    次"), "shift"},     {tr("日    志"), "journal"},    {tr("练    习"), "practice"},
      {tr("加 入 店 铺"), "join"},   {tr("更 换 操 作 员"), kExit},  {tr("帮    助"), "help"}};
}

void frmMain::addScreens(frmMenu& menu, const Entries& entries) {
  for (const auto& [caption, key] : entries) {
    const bool own = key == kExit || key == kEnd;
    if (own || screens_.contains(key)) menu.AddMenu(caption, key);
  }
}

bool frmMain::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) {
    applyColours();
    queueMenu();
  }
  return QWidget::event(event);
}

void frmMain::applyColours() {
  const QColor fore = legibleOn(settingColour(pos_.gPosSet.C1));
  Label1_->setStyleSheet("color: " + fore.name());  // stronger than the program's style sheet
  update();
}

// The menu is modal and so must not open from within the event that made the window active: that
// event would not end before the menu does.
void frmMain::queueMenu() {
  if (menuQueued_) return;
  menuQueued_ = true;
  QMetaObject::invokeMethod(this, &frmMain::showMenu, Qt::QueuedConnection);
}

void frmMain::showMenu() {
  menuQueued_ = false;
  if (!showMenu_ || menuShowing_ || ended_) return;
  {
    const QScopedValueRollback showing(menuShowing_, true);
    furtherChoice_ = {};
    theMenu_->setFooter(menuFooter());
    theMenu_->ShowMenu(1);
    if (!furtherChoice_.Key.isEmpty()) theMenu_MenuClick(furtherChoice_);
  }
  // Not every window system reports the window as active again when a modal window over it closes.
  if (!ended_) queueMenu();
}

QString frmMain::menuFooter() const {
  QString person = tr("尚未登录");
  if (pos_.gOperator) {
    QString name = qtText(pos_.gOperator->Name());
    if (name.size() > kLongestName) name = name.left(kLongestName - 1) + QChar(0x2026);
    person = tr("操作员：%1").arg(name);
  }
  return tr("菜单键 / 右键：更多功能（或 F10）　%1").arg(person);
}

void frmMain::showFurtherMenu() {
  furtherMenu_->MenuClick = [this](const MenuItem& Menu) {
    furtherChoice_ = Menu;
    theMenu_->reject();
  };
  // Side by side: the main menu makes room where the screen is too narrow.
  const QPoint place = theMenu_->pos();
  const int both = 2 * (theMenu_->width() + kMenuGap);
  const int leftmost = theMenu_->screen()->availableGeometry().right() - both;
  theMenu_->move(qBound(0, leftmost, place.x()), place.y());
  furtherMenu_->setBoxTop(theMenu_->BoxTop());
  furtherMenu_->setBoxLeft(theMenu_->BoxLeft() + twips(theMenu_->width() + kMenuGap));
  furtherMenu_->ShowMenu(0);
  theMenu_->move(place);
}

void frmMain::theMenu_MenuClick(const MenuItem& Menu) {
  const QScopedValueRollback running(showMenu_, false);
  if (Menu.Key == kExit) return changeOperator();
  if (Menu.Key == kEnd) return void(close());
  const auto screen = screens_.find(Menu.Key);
  if (screen != screens_.end()) openScreen(screen->second);
}

// What a screen reads or stores to open can fail for a moment, when another program has the data
// file. The menu comes again then.
void frmMain::openScreen(const Screen& screen) {
  try {
    if (screen.needsLogin && !someoneLoggedIn()) return;
    const Permit leave = screen.right ? askLeave(pos_, this, {*screen.right}) : nullptr;
    if (!screen.right || leave) screen.open();
  } catch (const Failure& failure) {
    messageBox(this, qtText(failure.what()), {}, BoxIcon::kExclamation);
  }
}

bool frmMain::someoneLoggedIn() {
  if (pos_.gOperator) return true;
  return login_->goLogin() == frmLogin::kAccepted && pos_.gOperator;
}

void frmMain::changeOperator() {
  try {
    pos_.logOff();
  } catch (const Failure& failure) {
    return messageBox(this, qtText(failure.what()), {}, BoxIcon::kExclamation);
  }
  login_->goLogin();
}

// However the program is ended, and whatever of it fails, all of it is tried, once.
void frmMain::closeEvent(QCloseEvent* event) {
  event->accept();
  if (ended_) return;
  ended_ = true;
  furtherMenu_->reject();
  theMenu_->reject();
  endOfWork();
  if (pos_.gPosSet.VMouse == 0) pos_.ShowMouse(true);
  QCoreApplication::exit(0);  // ends every modal loop; quit() would ask the windows first
}

void frmMain::endOfWork() {
  QStringList done, notDone;
  const auto attempt = [&](const QString& success, const QString& failed, const auto& step) {
    try {
      if (step()) done += success;
    } catch (const Failure& failure) {
      notDone += failed.arg(qtText(failure.what()));
    }
  };
  attempt(tr("操作员注销已完成。"), tr("操作员注销没有完成：%1"), [this] {
    const bool someone = pos_.gOperator != nullptr;
    pos_.logOff();
    return someone;
  });
  attempt(tr("数据备份已完成。"), tr("数据备份没有完成：%1"), [this] {
    const bool wanted = pos_.wantsBackUp();
    if (wanted) pos_.backUp();
    return wanted;
  });
  attempt(tr("当天的备份已完成。"), tr("当天的备份没有完成：%1"),
          [this] { return makeLastBackup(pos_.backups.get()); });
  if (notDone.isEmpty()) return;
  messageBox(QApplication::activeWindow(), (notDone + done).join('\n'), {}, BoxIcon::kExclamation);
}

void frmMain::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor back = settingColour(pos_.gPosSet.C1);
  const QColor fore = legibleOn(back);
  painter.fillRect(rect(), back);
  painter.setPen(fore);

  const QString shop = qtText(pos_.gSysParam.ShopName());
  QFont large = font();
  large.setPixelSize(height() / 14);
  painter.setFont(large);
  const QRect heading(width() / 16, height() / 12, width() * 7 / 8, height() / 8);
  painter.drawText(heading, Qt::AlignCenter | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(shop.isEmpty() ? windowTitle() : shop,
                                                    Qt::ElideRight, heading.width()));
  const int line = heading.bottom() + height() / 60;
  painter.fillRect(QRect(width() * 3 / 8, line, width() / 4, 2), fore);

  large.setPixelSize(height() / 36);
  painter.setFont(large);
  dateShown_ = pos_.clock().date;
  const QDate day(dateShown_.year, dateShown_.month, dateShown_.day);
  painter.drawText(QRect(0, line, width(), height() / 15), Qt::AlignCenter,
                   QLocale().toString(day, tr("yyyy年M月d日  dddd", "date format")));
  paintVersion(painter);
  if (pos_.backups)
    BackupLine::paint(painter, rect().adjusted(kMenuGap, kMenuGap, -kMenuGap, 0), *pos_.backups);
}

void frmMain::paintVersion(QPainter& painter) const {
  QFont small = font();
  small.setPixelSize(kVersionPixels);
  painter.setFont(small);
  const QString version = qtText(tillVersion());
  painter.drawText(rect().adjusted(0, 0, -kMenuGap, -kMenuGap / 2),
                   Qt::AlignRight | Qt::AlignBottom, tr("版本 %1").arg(version));
}

void frmMain::timerEvent(QTimerEvent*) {
  const bool isOtherDay = dateShown_ != pos_.clock().date;
  const bool hasNews = !ended_ && pos_.backups && pos_.backups->look();
  if (isOtherDay || hasNews) update();
}
