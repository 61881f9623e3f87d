#include "reports/frmCount.h"

#include <numeric>

#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "app/posMod.h"
#include "base/NumberText.h"
#include "platform/PortError.h"
#include "platform/QtText.h"
#include "platform/Twips.h"
#include "reports/DayModel.h"
#include "reports/ShiftSheet.h"
#include "reports/TableLook.h"
#include "saleslib/BillBooks.h"
#include "saleslib/ClsDayStat.h"
#include "shell/Modal.h"
#include "shell/dlgApproval.h"

namespace {

constexpr int kHeight = 7380;
constexpr int kColumnWidths[] = {1764, 1764, 2540, 4410, 2540};
constexpr int kTenderWidth = 1764;
constexpr int kBesideList = 900;  // margins, frame and scroll bar

// As wide as its columns: a cashier with large type should not have to scroll sideways.
int formWidth(int tenderColumns) {
  return std::accumulate(std::begin(kColumnWidths), std::end(kColumnWidths),
                         kBesideList + tenderColumns * kTenderWidth);
}

ShiftSheet sheetOf(const ClsDayStat& day, const ClsSysParam& rules) {
  return {day.Sells().size(), day.SumQuantity(), day.SumMoney(), tenderSums(day, rules)};
}

}  // namespace

frmCount::frmCount(posMod& pos, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kMapped, parent),
      pos_(pos),
      model_(new DayModel(optionalTenders(pos.gSysParam), this)) {
  setObjectName("frmCount");
  setWindowTitle(tr("销售统计"));
  resize(pixels(formWidth(model_->columnCount() - static_cast<int>(std::size(kColumnWidths)))),
         pixels(kHeight));
  build();
  watchAll();
}

void frmCount::build() {
  Label1_ = new QLabel(tr("今日销售统计"));
  Label1_->setObjectName("Label1");
  Label1_->setTextFormat(Qt::PlainText);
  Label1_->setAlignment(Qt::AlignCenter);
  listSell_ = new QTableView;
  listSell_->setObjectName("listSell");
  listSell_->setModel(model_);
  lookLikeReport(*listSell_);
  int column = 0;
  for (const int width : kColumnWidths) listSell_->setColumnWidth(column++, pixels(width));
  while (column < model_->columnCount()) listSell_->setColumnWidth(column++, pixels(kTenderWidth));
  lblMsg_ = new QLabel;
  lblMsg_->setObjectName("lblMsg");
  lblMsg_->setWordWrap(true);
  auto* print1 = new QPushButton(tr("打印交班表"));
  print1->setObjectName("print1");
  connect(print1, &QPushButton::clicked, this, &frmCount::printSheet);
  auto* cmdExit = new QPushButton(tr("退出(&X)"));
  cmdExit->setObjectName("cmdExit");
  connect(cmdExit, &QPushButton::clicked, this, &QDialog::close);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(print1);
  buttons->addWidget(cmdExit);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(Label1_);
  layout->addWidget(listSell_, 1);
  layout->addWidget(lblMsg_);
  layout->addLayout(buttons);
  listSell_->setFocus();
}

void frmCount::init() {
  Label1_->setText(tr("%1今日销售统计表").arg(qtText(pos_.gOperator->Name())));
  show(pos_.billBooks().today());
  centreOnScreen(*this);
  exec();
}

void frmCount::show(const ClsDayStat& day) {
  model_->show(day.Sells(), qtText(pos_.gOperator->Name()));
  QString parts;
  for (const TenderSum& tender : tenderSums(day, pos_.gSysParam)) {
    parts += tender.shown(tr("，其中%1 [%2] 元", "part of the day's sum, behind it"));
  }
  lblMsg_->setText(tr("今日累计发生 [%1] 笔交易，共交易 [%2] 件商品，交易额 [%3] 元%4")
                       .arg(QString::number(day.Sells().size()),
                            qtText(generalNumber(day.SumQuantity())), shownSum(day.SumMoney()),
                            parts));
}

void frmCount::printSheet() {
  const Permit leave = askLeave(pos_, this, {Right::kShift});
  if (!leave) return;
  try {
    const ShiftSheet sheet = sheetOf(pos_.billBooks().today(), pos_.gSysParam);
    ReceiptPrinter::ofSettings(pos_.gPosSet, *pos_.ports)->print(sheet.document());
  } catch (const PortError& error) {
    messageBox(this, qtText(error.what()));
  }
}
