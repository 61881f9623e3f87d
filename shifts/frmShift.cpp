#include "shifts/frmShift.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "app/posMod.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "platform/QtText.h"
#include "shell/Modal.h"
#include "shell/Noted.h"
#include "shell/dlgApproval.h"
#include "shifts/RequiredShift.h"
#include "shifts/dlgCashCount.h"
#include "shifts/dlgShiftSheet.h"

namespace {

constexpr std::size_t kMostListed = 200;
constexpr int kColumnWidths[] = {60, 170, 110, 170};  // pixels; the last column takes the rest

Outage::Report boxOver(QWidget* window) {
  return [window](const std::string& text) { messageBox(window, qtText(text)); };
}

/// To the minute, as a list shows it.
QString shownTime(const DateTime& time) {
  return qtText(dateText(time.date) + " " + shortTime(time));
}

/// Of a shift, in the journal, which is Chinese whatever the screens speak.
QString touched(const Shift& shift) {
  return QString("班次 %1").arg(shift.number);  // untranslated: stored
}

}  // namespace

frmShift::frmShift(posMod& pos, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kMapped, parent),
      pos_(pos),
      devices_(*pos.ports, boxOver(this), boxOver(this)),
      cmdOpen_(button("cmdOpen", tr("开班"))),
      cmdIn_(button("cmdIn", tr("存入现金"))),
      cmdOut_(button("cmdOut", tr("取出现金"))),
      cmdRead_(button("cmdRead", tr("读数"))),
      cmdClose_(button("cmdClose", tr("清点和结班"))),
      listClosed_(made("listClosed", new QTableWidget(this))),
      cmdExit_(button("cmdExit", tr("退出"))),
      lblState_(label("lblState", {})) {
  setObjectName("frmShift");
  setWindowTitle(tr("班次"));
  arrange();
  const auto does = [this](QPushButton* button, const std::function<void()>& deed) {
    connect(button, &QPushButton::clicked, this, [this, deed] { attempt(deed); });
  };
  does(cmdOpen_, [this] { open(); });
  does(cmdIn_, [this] { move(dlgCash::Purpose::kIn); });
  does(cmdOut_, [this] { move(dlgCash::Purpose::kOut); });
  does(cmdRead_, [this] { read(); });
  does(cmdClose_, [this] { closeShift(); });
  onEnter(listClosed_, [this] { attempt([this] { showClosed(); }); });
  connect(cmdExit_, &QPushButton::clicked, this, &QDialog::close);
  walkThrough({cmdOpen_, cmdIn_, cmdOut_, cmdRead_, cmdClose_, listClosed_, cmdExit_});
  devices_.open(pos.gPosSet);
  showState();
}

void frmShift::lookLikeList() {
  const QStringList titles = {tr("班次"), tr("开班", "when it was opened"), tr("开班人"),
                              tr("结班"), tr("结班人")};
  listClosed_->setColumnCount(static_cast<int>(titles.size()));
  listClosed_->setHorizontalHeaderLabels(titles);
  listClosed_->setSelectionBehavior(QAbstractItemView::SelectRows);
  listClosed_->setSelectionMode(QAbstractItemView::SingleSelection);
  listClosed_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  listClosed_->setTabKeyNavigation(false);
  listClosed_->setShowGrid(false);
  listClosed_->setWordWrap(false);
  listClosed_->verticalHeader()->hide();
  listClosed_->horizontalHeader()->setHighlightSections(false);
  listClosed_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  listClosed_->horizontalHeader()->setStretchLastSection(true);
  int column = 0;
  for (const int width : kColumnWidths) listClosed_->setColumnWidth(column++, width);
}

void frmShift::arrange() {
  lookLikeList();
  lblState_->setTextFormat(Qt::PlainText);
  lblState_->setWordWrap(true);
  auto* buttons = new QVBoxLayout;
  buttons->setSpacing(12);
  for (QPushButton* each : {cmdOpen_, cmdIn_, cmdOut_, cmdRead_, cmdClose_})
    buttons->addWidget(each);
  buttons->addStretch();
  buttons->addWidget(cmdExit_);
  auto* sheets = new QVBoxLayout;
  sheets->setSpacing(8);
  sheets->addWidget(label("lblClosed", tr("结过的班（回车看班次表、重打）")));
  sheets->addWidget(listClosed_, 1);
  auto* both = new QHBoxLayout;
  both->setSpacing(24);
  both->addLayout(buttons);
  both->addLayout(sheets, 1);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(32, 24, 32, 24);
  all->setSpacing(20);
  all->addWidget(lblState_);
  all->addLayout(both, 1);
  resize(900, 560);
}

// The focus goes to what is likely to come next.
void frmShift::showState() {
  const ShiftBooks books = pos_.shiftBooks();
  const std::optional<Shift> shift = books.current();
  lblState_->setText(shift ? tr("第 %1 班，%2 由%3开班，备用金 %4 元。")
                                 .arg(shift->number)
                                 .arg(qtText(generalText(shift->opened)), qtText(shift->openedBy),
                                      qtText(twoDecimals(shift->cashFloat)))
                           : tr("还没有开班。"));
  cmdOpen_->setEnabled(!shift);
  for (QPushButton* each : {cmdIn_, cmdOut_, cmdRead_, cmdClose_})
    each->setEnabled(shift.has_value());
  listClosed();
  (shift ? cmdIn_ : cmdOpen_)->setFocus();
}

void frmShift::listClosed() {
  const std::vector<ShiftHead> shifts = pos_.shiftBooks().closed(kMostListed);
  listClosed_->setRowCount(static_cast<int>(shifts.size()));
  int row = 0;
  for (const ShiftHead& shift : shifts) {
    int column = 0;
    for (const QString& text :
         {QString::number(shift.number), shownTime(shift.opened), qtText(shift.openedBy),
          shownTime(shift.closed.value_or(DateTime())), qtText(shift.closedBy)})
      listClosed_->setItem(row, column++, new QTableWidgetItem(text));
    listClosed_->item(row++, 0)->setData(Qt::UserRole, QVariant::fromValue<qint64>(shift.number));
  }
  if (row > 0) listClosed_->selectRow(0);
}

void frmShift::attempt(const std::function<void()>& deed) {
  try {
    deed();
    showState();
  } catch (const Failure& failure) {
    messageBox(this, qtText(failure.what()), {}, BoxIcon::kExclamation);
  }
}

void frmShift::open() {
  static_cast<void>(openShift(pos_, this));
}

void frmShift::move(dlgCash::Purpose purpose) {
  const Permit leave = askLeave(pos_, this, {Right::kDrawer});
  if (!leave) return;
  dlgCash dialog(pos_.gKeyBoard, purpose, this);
  if (dialog.exec() != QDialog::Accepted) return;
  const std::optional<CashMove> move = pos_.shiftBooks().move(
      purpose == dlgCash::Purpose::kIn ? dialog.amount() : -dialog.amount(), dialog.reason());
  if (!move) return;
  devices_.drawer().OpenDrawer();
  print([&](int columns) { return cashSlip(*move, pos_.gSysParam, columns); });
}

void frmShift::read() {
  const Permit leave = askLeave(pos_, this, {Right::kShift});
  const std::optional<Shift> shift = pos_.shiftBooks().current();
  if (!leave || !shift || !noted(pos_, this, EntryKind::kReported, touched(*shift))) return;
  dlgShiftSheet dialog(pos_.gKeyBoard, pos_.gSysParam, *shift, dlgShiftSheet::Purpose::kPrint,
                       this);
  if (dialog.exec() == QDialog::Accepted) print(*shift, ShiftPaperKind::kReading);
}

// Nothing of what should be there is shown before what is there has been stored.
bool frmShift::count() {
  if (!noted(pos_, this, EntryKind::kDrawerOpened)) return false;
  devices_.drawer().OpenDrawer();
  dlgCashCount dialog(pos_.gKeyBoard, this);
  return dialog.exec() == QDialog::Accepted && pos_.shiftBooks().count(dialog.counted());
}

void frmShift::closeShift() {
  const Permit leave = askLeave(pos_, this, {Right::kShift});
  if (!leave) return;
  int answer = dlgShiftSheet::kCountAgain;
  while (answer == dlgShiftSheet::kCountAgain) {
    if (!count()) return;
    dlgShiftSheet dialog(pos_.gKeyBoard, pos_.gSysParam, pos_.shiftBooks().current().value(),
                         dlgShiftSheet::Purpose::kClose, this);
    answer = dialog.exec();
  }
  const std::optional<Shift> shift = pos_.shiftBooks().current();
  if (answer != QDialog::Accepted || !shift || !pos_.shiftBooks().close()) return;
  print(pos_.shiftBooks().find(shift->number).value(), ShiftPaperKind::kClosed);
}

void frmShift::showClosed() {
  const QTableWidgetItem* number = listClosed_->item(listClosed_->currentRow(), 0);
  if (number == nullptr) return;
  const std::optional<Shift> shift =
      pos_.shiftBooks().find(number->data(Qt::UserRole).toLongLong());
  const Permit leave = askLeave(pos_, this, {Right::kShift});
  if (!leave || !shift) return;
  dlgShiftSheet dialog(pos_.gKeyBoard, pos_.gSysParam, *shift, dlgShiftSheet::Purpose::kPrint,
                       this);
  if (dialog.exec() != QDialog::Accepted) return;
  if (noted(pos_, this, EntryKind::kReprinted, touched(*shift)))
    print(*shift, ShiftPaperKind::kReprint);
}

void frmShift::print(const Shift& shift, ShiftPaperKind kind) {
  print(
      [&](int columns) { return shiftPaper(shift, kind, pos_.clock(), pos_.gSysParam, columns); });
}

void frmShift::print(const std::function<ShiftPaper(int columns)>& paper) {
  devices_.print([&](ReceiptPrinter& printer) {
    ShiftPaper printed = paper(printer.paper().line);
    printer.print(LineDocument{std::move(printed.name), std::move(printed.lines)});
  });
}
