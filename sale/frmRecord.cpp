#include "sale/frmRecord.h"

#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "base/NumberText.h"
#include "platform/QtText.h"
#include "sale/ListModel.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ShopLink.h"

namespace {

enum BillColumn { kNumber, kAmount, kTime, kTill };
enum LineColumn { kCode, kName, kUnit, kPrice, kQuantity, kDiscount, kMoney };

/// Its number tells the till that holds it, and it may be held for long.
bool isOfShop(const ClsSell& bill) {
  return bill.BillNo() >= kNumbersPerTill;
}

std::string heldSince(const ClsSell& bill, const DateTime& now) {
  if (!isOfShop(bill)) return shortTime(now);
  const DateTime since = bill.SellTime();
  return (since.date == now.date ? "" : dateText(since.date) + " ") + shortTime(since);
}

QString billCell(const ClsSell& bill, int column, const DateTime& now) {
  switch (column) {
    case kNumber:
      return QString::number(bill.BillNo());
    case kTill:
      return QCoreApplication::translate("frmRecord", "%1 号").arg(bill.BillNo() / kNumbersPerTill);
    case kAmount:
      return qtText(twoDecimals(bill.Amount()));
    default:
      return qtText(heldSince(bill, now));
  }
}

QString lineCell(const ClsSellItem& line, int column) {
  switch (column) {
    case kCode:
      return qtText(line.EntryCode());
    case kName:
      return qtText(line.SpName());
    case kUnit:
      return qtText(line.Unit());
    case kPrice:
      return qtText(twoDecimals(line.Price()));
    case kQuantity:
      return qtText(generalNumber(line.Quantity()));
    case kDiscount:
      return qtText(generalNumber(line.Discount()));
    default:
      return qtText(twoDecimals(line.Money()));
  }
}

}  // namespace

// The controls are made in the order of the Tab key.
frmRecord::frmRecord(const KeyBoard& keys, QWidget* parent)
    : KeyDrivenDialog(keys, EnterKey::kMapped, parent),
      bills_(new ListModel({tr("单号"), tr("金额"), tr("时间"), tr("收银机")}, kAmount, this)),
      lines_(new ListModel(
          {tr("编号"), tr("品名"), tr("单位"), tr("单价"), tr("数量"), tr("折扣"), tr("金额")},
          kPrice, this)),
      listSell_(list("listSell", bills_)),
      listProducts_(list("listProducts", lines_)) {
  setObjectName("frmRecord");
  setWindowTitle(tr("调入挂单"));
  QPushButton* cmdExit = button("cmdExit", tr("退出(&X)"));
  connect(cmdExit, &QPushButton::clicked, this, &QDialog::reject);
  connect(listSell_, &QTableView::doubleClicked, this, &frmRecord::chooseSelected);
  connect(listSell_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &frmRecord::viewSelectpro);
  onEnter(listSell_, [this] { chooseSelected(); });
  onEnter(listProducts_, [] {});  // its rows are only read
  setUpColumns();

  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(24, 16, 24, 16);
  all->setSpacing(12);
  all->addWidget(label("Label3", tr("调入挂单")), 0, Qt::AlignHCenter);
  all->addWidget(frame("Frame1", "Label1", tr("挂起的单子：(回车键选择载入)"), listSell_), 2);
  all->addWidget(frame("Frame2", "Label2", tr("所选单子商品(Tab键切换过来)："), listProducts_), 3);
  all->addLayout(buttonRow({cmdExit}));
  resize(900, 680);
}

QTableView* frmRecord::list(const char* name, ListModel* model) {
  auto* made = KeyDrivenDialog::made(name, new QTableView(this));
  made->setModel(model);
  made->setSelectionBehavior(QAbstractItemView::SelectRows);
  made->setSelectionMode(QAbstractItemView::SingleSelection);
  made->setEditTriggers(QAbstractItemView::NoEditTriggers);
  made->setTabKeyNavigation(false);
  made->setAlternatingRowColors(true);
  made->setShowGrid(false);
  made->setWordWrap(false);
  made->verticalHeader()->hide();
  made->horizontalHeader()->setHighlightSections(false);
  made->horizontalHeader()->setSectionsClickable(false);
  return made;
}

QFrame* frmRecord::frame(const char* name, const char* heading, const QString& caption,
                         QTableView* content) {
  auto* made = new QFrame(this);
  made->setObjectName(name);
  auto* inside = new QVBoxLayout(made);
  inside->addWidget(label(heading, caption));
  inside->addWidget(content);
  return made;
}

void frmRecord::setUpColumns() {
  listSell_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  listProducts_->horizontalHeader()->setSectionResizeMode(kName, QHeaderView::Stretch);
  const std::pair<LineColumn, int> widths[] = {{kCode, 180},    {kUnit, 70},     {kPrice, 110},
                                               {kQuantity, 90}, {kDiscount, 80}, {kMoney, 120}};
  for (const auto& [column, width] : widths) listProducts_->setColumnWidth(column, width);
}

std::int32_t frmRecord::Load(const std::vector<std::shared_ptr<ClsSell>>& bills,
                             const DateTime& now) {
  held_ = &bills;
  chosen_ = 0;
  bills_->show(static_cast<int>(bills.size()), [&bills, now](int row, int column) {
    return billCell(*bills[static_cast<std::size_t>(row)], column, now);
  });
  listSell_->setColumnHidden(kTill, std::none_of(bills.begin(), bills.end(),
                                                 [](const auto& bill) { return isOfShop(*bill); }));
  listSell_->selectRow(0);
  viewSelectpro();
  exec();
  lines_->show(0, {});
  bills_->show(0, {});
  held_ = nullptr;
  return chosen_;
}

void frmRecord::viewSelectpro() {
  const int row = listSell_->currentIndex().row();
  if (row < 0 || held_ == nullptr) return lines_->show(0, {});
  const ClsSell& bill = *(*held_)[static_cast<std::size_t>(row)];
  lines_->show(static_cast<int>(bill.Items().size()), [&bill](int line, int column) {
    return lineCell(*bill.Items()[static_cast<std::size_t>(line)], column);
  });
}

void frmRecord::chooseSelected() {
  const int row = listSell_->currentIndex().row();
  if (row < 0) return;
  chosen_ = (*held_)[static_cast<std::size_t>(row)]->BillNo();
  accept();
}
