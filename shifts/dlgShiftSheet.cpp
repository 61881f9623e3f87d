#include "shifts/dlgShiftSheet.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/TenderTexts.h"
#include "base/NumberText.h"
#include "platform/QtText.h"
#include "saleslib/ClsSysParam.h"

dlgShiftSheet::dlgShiftSheet(const KeyBoard& keys, const ClsSysParam& shop, const Shift& shift,
                             Purpose purpose, QWidget* parent)
    : KeyDrivenDialog(keys, EnterKey::kMapped, parent) {
  setObjectName("dlgShiftSheet");
  setWindowTitle(tr("第 %1 班").arg(shift.number));
  const bool isClosing = purpose == Purpose::kClose;
  QPushButton* cmdOk = button("cmdOk", isClosing ? tr("结班") : tr("打印"));
  connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(32);
  grid->setVerticalSpacing(2);
  addTakings(*grid, shift, shop);
  if (shift.deeds) addDeeds(*grid, *shift.deeds);
  addDrawer(*grid, shift, isClosing || shift.closed);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(32, 20, 32, 20);
  all->setSpacing(16);
  all->setSizeConstraint(QLayout::SetFixedSize);
  all->addLayout(grid);
  QPushButton* cmdAgain = isClosing ? button("cmdAgain", tr("重新清点")) : nullptr;
  QPushButton* cmdCancel = button("cmdCancel", isClosing ? tr("先不结班") : tr("关闭"));
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  if (cmdAgain == nullptr) {
    all->addLayout(buttonRow({cmdOk, cmdCancel}));
    return;
  }
  connect(cmdAgain, &QPushButton::clicked, this, [this] { done(kCountAgain); });
  all->addLayout(buttonRow({cmdOk, cmdAgain, cmdCancel}));
}

void dlgShiftSheet::addRow(QGridLayout& grid, const char* name, const QString& caption,
                           const QString& count, const QString& amount) {
  const int row = grid.rowCount();
  grid.addWidget(label("", caption), row, 0);
  grid.addWidget(label("", count), row, 1, Qt::AlignRight);
  grid.addWidget(label(name, amount), row, 2, Qt::AlignRight);
}

void dlgShiftSheet::addRow(QGridLayout& grid, const char* name, const QString& caption,
                           const QString& count, Currency amount) {
  addRow(grid, name, caption, count, qtText(twoDecimals(amount)));
}

void dlgShiftSheet::addSum(QGridLayout& grid, const char* name, const QString& caption,
                           const ShiftSum& sum) {
  addRow(grid, name, caption, tr("%1 笔", "how many, before what they came to").arg(sum.count),
         sum.amount);
}

void dlgShiftSheet::addTakings(QGridLayout& grid, const Shift& shift, const ClsSysParam& shop) {
  const ShiftTakings& takings = shift.takings;
  addSum(grid, "lblBills", tr("单据"), takings.bills);
  for (const TenderKind& kind : tenderKinds()) {
    const ShiftSum& sum = takings.of(kind.tender);
    if (shop.Takes(kind) || sum.count > 0) addSum(grid, kind.column, tenderName(kind), sum);
  }
  addSum(grid, "lblTopUps", tr("充值收现金"), takings.topUps);
  addSum(grid, "lblRefunds", tr("退货退现金"), takings.refunds);
  addSum(grid, "lblIn", tr("存入现金"), takings.cashIn);
  addSum(grid, "lblOut", tr("取出现金"), takings.cashOut);
}

void dlgShiftSheet::addDeeds(QGridLayout& grid, const ShiftDeeds& deeds) {
  const auto times = [](std::int64_t count) {
    return tr("%1 次", "how often something was done").arg(count);
  };
  addRow(grid, "lblOpened", tr("不收款开钱箱"), times(deeds.drawerOpened), QString());
  addSum(grid, "lblCancelled", tr("撤消单据"), deeds.cancelled);
  addRow(grid, "lblDeleted", tr("删除商品行"), tr("%1 行", "of bills").arg(deeds.deleted.count),
         deeds.deleted.amount);
  addRow(grid, "lblApprovals", tr("授权"), times(deeds.approvals), QString());
}

void dlgShiftSheet::addDrawer(QGridLayout& grid, const Shift& shift, bool isCounted) {
  addRow(grid, "lblFloat", tr("备用金"), {}, shift.cashFloat);
  addRow(grid, "lblExpected", tr("钱箱应有"), {}, shift.expected());
  if (!isCounted) return;
  addRow(grid, "lblCounted", tr("清点"), tr("第 %1 次").arg(shift.counts), shift.counted.sum());
  const Currency over = shift.difference();
  addRow(grid, "lblOver",
         over.isZero()       ? tr("相符")
         : over > Currency() ? tr("长款")
                             : tr("短款"),
         {}, over);
}
