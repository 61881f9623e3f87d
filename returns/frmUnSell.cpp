#include "returns/frmUnSell.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "app/posMod.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "platform/QtText.h"
#include "returns/ReturnLines.h"
#include "shell/Modal.h"
#include "shell/dlgApproval.h"
#include "shell/frmMsg.h"

namespace {

/// Whether a text still being typed ("12.", "12.50") only lacks its end to be that number.
bool onItsWayTo(QString text, const QString& plain) {
  if (!text.contains('.')) return false;
  while (text.endsWith('0')) text.chop(1);
  if (text.endsWith('.')) text.chop(1);
  return text == plain;
}

}  // namespace

frmUnSell::frmUnSell(posMod& pos, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kPlain, parent),
      pos_(pos),
      returns_(pos.returnBooks()),
      lines_(new ReturnLines(this)),
      txtNo_(field("txtNo")),
      txttm_(field("txttm")),
      lvlistSp_(made("lvlistSp", new QTableView(this))),
      lblStatus_(label("lblStatus", {})),
      Text1_(figure("Text1")),
      Text2_(figure("Text2")),
      txtAmount_(field("txtAmount")),
      txtmoney_(field("txtmoney")),
      cmdUnSell_(button("cmdUnSell", tr("退货"))),
      cmdExit_(button("cmdExit", tr("退出"))) {
  setObjectName("frmUnSell");
  setWindowTitle(tr("退货"));
  txttm_->setPlaceholderText(tr("条码或货号"));
  lblStatus_->setTextFormat(Qt::PlainText);
  lblStatus_->setWordWrap(true);
  setUpList();
  arrange();
  setUpEnter();
  showBill();
  showLine();
  connect(lvlistSp_, &QTableView::clicked, this,
          [this](const QModelIndex& clicked) { chooseRow(clicked.row()); });
  connect(txtmoney_, &QLineEdit::textChanged, this, &frmUnSell::rewriteRefund);
  connect(cmdUnSell_, &QPushButton::clicked, this, &frmUnSell::storeReturn);
  connect(cmdExit_, &QPushButton::clicked, this, &QDialog::reject);
}

QLineEdit* frmUnSell::figure(const char* name) {
  QLineEdit* made = field(name);
  made->setReadOnly(true);
  made->setFocusPolicy(Qt::NoFocus);
  return made;
}

void frmUnSell::setUpList() {
  lvlistSp_->setModel(lines_);
  lvlistSp_->setColumnHidden(ReturnLines::kLineId, true);
  lvlistSp_->setSelectionBehavior(QAbstractItemView::SelectRows);
  lvlistSp_->setSelectionMode(QAbstractItemView::SingleSelection);
  lvlistSp_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lvlistSp_->setTabKeyNavigation(false);
  lvlistSp_->setShowGrid(false);
  lvlistSp_->setWordWrap(false);
  lvlistSp_->verticalHeader()->hide();
  QHeaderView* titles = lvlistSp_->horizontalHeader();
  titles->setHighlightSections(false);
  titles->setSectionResizeMode(ReturnLines::kName, QHeaderView::Stretch);
  lvlistSp_->setColumnWidth(ReturnLines::kCode, 190);
  lvlistSp_->setColumnWidth(ReturnLines::kPrice, 120);
  lvlistSp_->setColumnWidth(ReturnLines::kQuantity, 100);
  lvlistSp_->setColumnWidth(ReturnLines::kDiscount, 90);
  lvlistSp_->setColumnWidth(ReturnLines::kMoney, 130);
}

void frmUnSell::arrange() {
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(24, 16, 24, 16);
  all->setSpacing(12);
  all->addWidget(label("Label1", tr("退     货")), 0, Qt::AlignHCenter);
  all->addLayout(searchRow());
  all->addWidget(lvlistSp_, 1);
  all->addWidget(lblStatus_);
  all->addLayout(returnRow());
  all->addLayout(buttonRow({cmdUnSell_, cmdExit_}));
  resize(960, 640);
}

QLayout* frmUnSell::searchRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(12);
  row->addWidget(label("Label2", tr("流水号：")));
  row->addWidget(txtNo_, 1);
  row->addSpacing(16);
  row->addWidget(label("Label3", tr("要退商品编号：")));
  row->addWidget(txttm_, 2);
  return row;
}

QLayout* frmUnSell::returnRow() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(8);
  grid->addWidget(label("Label5", tr("商品单价：")), 0, 0);
  grid->addWidget(Text1_, 0, 1);
  grid->addWidget(label("Label6", tr("商品数量：")), 0, 2);
  grid->addWidget(Text2_, 0, 3);
  grid->addWidget(label("Label8", tr("实退数量：")), 1, 0);
  grid->addWidget(txtAmount_, 1, 1);
  grid->addWidget(label("Label4", tr("实退金额：")), 1, 2);
  grid->addWidget(txtmoney_, 1, 3);
  return grid;
}

void frmUnSell::setUpEnter() {
  onEnter(txtNo_, [this] { loadBill(); });
  onEnter(txttm_, [this] { chooseTyped(); });
  onEnter(lvlistSp_, [this] {
    chooseRow(lvlistSp_->currentIndex().row());
    if (returns_.line() != nullptr) focusWhole(txtAmount_);
  });
  onEnter(txtAmount_, [this] {
    confirmQuantity();
    if (returns_.line() != nullptr) focusWhole(txtmoney_);
  });
  onEnter(txtmoney_, [this] { cmdUnSell_->click(); });
  onLeaving(txtAmount_, [this] { quantityLeft(); });
  onLeaving(txtmoney_, [this] { rewriteRefund(); });
}

void frmUnSell::message(const QString& text) {
  frmMsg(this).Message(text);
}

bool frmUnSell::loadBill() {
  const QString refusal = returns_.load(txtNo_->text());
  showBill();
  showLine();
  if (refusal.isEmpty()) return true;
  message(refusal);
  focusWhole(txtNo_);
  return false;
}

void frmUnSell::showBill() {
  lines_->show(returns_.bill());
  lblStatus_->setText(returns_.bill() != nullptr
                          ? returns_.billText()
                          : tr("单号：     商品数量：    金额：      销售时间：     收银员："));
  focusWhole(txttm_);
}

void frmUnSell::chooseTyped() {
  if (returns_.bill() == nullptr) {
    if (txtNo_->text().isEmpty()) {
      message(tr("请输入要退货的单据流水号！"));
      txtNo_->setFocus();
      return;
    }
    if (!loadBill()) return;
  }
  returns_.chooseByCode(txttm_->text());
  showLine();
  // Goods that are not on the bill: the next code is wanted, not a quantity.
  focusWhole(returns_.line() != nullptr ? txtAmount_ : txttm_);
}

void frmUnSell::chooseRow(int row) {
  if (returns_.bill() == nullptr) return;
  returns_.chooseById(lines_->lineId(row));
  showLine();
}

void frmUnSell::showLine() {
  const ClsSellItem* line = returns_.line();
  cmdUnSell_->setEnabled(line != nullptr);
  if (line == nullptr) {
    for (QLineEdit* edit : {Text1_, Text2_, txtAmount_, txtmoney_}) edit->clear();
    return;
  }
  txttm_->setText(qtText(line->EntryCode()));
  Text1_->setText(qtText(twoDecimals(line->Price())));
  Text2_->setText(qtText(generalNumber(line->Quantity())));
  txtAmount_->setText(Text2_->text());
  confirmedQuantity_ = txtAmount_->text();
  showRefund(line->Money());
  for (int row = 0; row < lines_->rowCount(); ++row) {
    if (lines_->lineId(row) == line->Id()) lvlistSp_->selectRow(row);
  }
}

void frmUnSell::confirmQuantity() {
  if (returns_.line() == nullptr) return;
  const double quantity = returns_.quantityOf(txtAmount_->text());
  txtAmount_->setText(qtText(generalNumber(quantity)));
  confirmedQuantity_ = txtAmount_->text();
  cmdUnSell_->setEnabled(quantity > 0);
  showRefund(returns_.worth(quantity));
}

// Left by Tab or the mouse: the refund must not stay that of another quantity.
void frmUnSell::quantityLeft() {
  if (txtAmount_->text() != confirmedQuantity_) confirmQuantity();
}

void frmUnSell::showRefund(Currency refund) {
  txtmoney_->setText(qtText(generalNumber(refund)));
}

// In plain number text at every change; while the figure is being typed, its end is waited for, so
// that "12." can become 12.5.
void frmUnSell::rewriteRefund() {
  const QString text = txtmoney_->text();
  const auto refund = Currency::parse(text.toStdString());
  if (!refund) return;
  const QString plain = qtText(generalNumber(*refund));
  if (text == plain || (focusWidget() == txtmoney_ && onItsWayTo(text, plain))) return;
  txtmoney_->setText(plain);
}

void frmUnSell::storeReturn() {
  if (returns_.line() == nullptr) return;
  const auto refund = Currency::parse(txtmoney_->text().toStdString());
  if (!refund) {
    message(tr("请输入正确的实退金额！"));
    focusWhole(txtmoney_);
    return;
  }
  const double quantity = returns_.quantityOf(txtAmount_->text());
  const Permit leave = refundAgreed(quantity, *refund);
  if (!leave) {
    focusWhole(txtmoney_);
    return;
  }
  const QString refusal = returns_.takeBack(quantity, *refund);
  showBill();
  showLine();
  // What is typed or scanned next replaces the code, also one that showLine has just written.
  focusWhole(txttm_);
  if (!refusal.isEmpty()) message(refusal);
}

/// Leave to pay that back; none when the cashier, or whoever had to approve it, thinks better of
/// it.
Permit frmUnSell::refundAgreed(double quantity, Currency refund) {
  try {
    const QString doubt = returns_.doubt(quantity, refund);
    if (!doubt.isEmpty() && !askYesNo(this, doubt, tr("退货"), false)) return {};
    return askLeave(pos_, this, {Right::kReturn, refund});
  } catch (const Failure& failure) {
    message(qtText(failure.what()));
    return {};
  }
}
