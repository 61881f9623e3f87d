#include "setup/GoodsPage.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <algorithm>

#include "goodsin/frmGoodsIn.h"
#include "platform/QtText.h"

namespace {

constexpr std::string TypedGoods::*kParts[] = {&TypedGoods::code, &TypedGoods::name,
                                               &TypedGoods::unit, &TypedGoods::price,
                                               &TypedGoods::stock};

}  // namespace

GoodsPage::GoodsPage(SetupAnswers& answers, const KeyBoard& keys)
    : SetupPage(answers), keys_(keys) {
  addSheetRow();
  addTypedRow();
  addTable();
  note(tr(
      "现在没有商品的话，什么也不用填，以后再导入。条码或编码不超过 5 个字的，也作货号，收银时照它"
      "输入。"));
}

void GoodsPage::addSheetRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(12);
  auto* cmdSheet = asks("cmdSheet", new QPushButton(tr("选表格文件(&F)")));
  cmdNoSheet_ = asks("cmdNoSheet", new QPushButton(tr("不用表格(&X)")));
  lblSheet_ = new QLabel;
  lblSheet_->setObjectName("lblSheet");
  lblSheet_->setTextFormat(Qt::PlainText);
  lblSheet_->setWordWrap(true);
  row->addWidget(cmdSheet);
  row->addWidget(cmdNoSheet_);
  row->addWidget(lblSheet_, 1);
  auto* area = new QWidget;
  row->setContentsMargins(0, 0, 0, 0);
  area->setLayout(row);
  addRow(tr("商品表："), area);
  connect(cmdSheet, &QPushButton::clicked, this, &GoodsPage::chooseSheet);
  connect(cmdNoSheet_, &QPushButton::clicked, this, &GoodsPage::dropSheet);
  dropSheet();
}

void GoodsPage::addTypedRow() {
  auto* area = new QWidget;
  auto* layout = new QGridLayout(area);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(6);
  const QString headings[] = {tr("条码或编码"), tr("名称"), tr("单位"), tr("零售价"), tr("库存")};
  const char* const names[] = {"txtCode", "txtName", "txtUnit", "txtPrice", "txtStock"};
  constexpr int kStretch[] = {3, 4, 1, 2, 2};
  for (int column = 0; column < static_cast<int>(kFields); ++column) {
    fields_[column] = asks(names[column], new QLineEdit);
    layout->addWidget(new QLabel(headings[column]), 0, column);
    layout->addWidget(fields_[column], 1, column);
    layout->setColumnStretch(column, kStretch[column]);
  }
  auto* cmdAdd = asks("cmdAdd", new QPushButton(tr("加入(&A)")));
  layout->addWidget(cmdAdd, 1, static_cast<int>(kFields));
  onEnter(fields_.back(), [this] { addAndGoOn(); });
  connect(cmdAdd, &QPushButton::clicked, this, &GoodsPage::addAndGoOn);
  addRow(tr("或者录入："), area);
}

void GoodsPage::addTable() {
  tblTyped_ = asks("tblTyped", new QTableWidget(0, static_cast<int>(kFields)));
  tblTyped_->setHorizontalHeaderLabels(
      {tr("条码或编码"), tr("名称"), tr("单位"), tr("零售价"), tr("库存")});
  tblTyped_->setSelectionBehavior(QAbstractItemView::SelectRows);
  tblTyped_->setSelectionMode(QAbstractItemView::SingleSelection);
  tblTyped_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tblTyped_->setTabKeyNavigation(false);
  tblTyped_->setAlternatingRowColors(true);
  tblTyped_->verticalHeader()->hide();
  tblTyped_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  tblTyped_->horizontalHeader()->setHighlightSections(false);
  tblTyped_->setMinimumHeight(200);
  lblTyped_ = new QLabel(tr("每种写完按回车键加入下面的表；在表里按回车键改，按 Delete 去掉。"));
  lblTyped_->setObjectName("lblTyped");
  lblTyped_->setTextFormat(Qt::PlainText);
  lblTyped_->setWordWrap(true);
  grid().addWidget(lblTyped_, grid().rowCount(), 1);
  grid().addWidget(tblTyped_, grid().rowCount(), 1);
  connect(tblTyped_, &QTableWidget::activated, this,
          [this](const QModelIndex& index) { correct(index.row()); });
  auto* deletion = new QShortcut(Qt::Key_Delete, tblTyped_, nullptr, nullptr, Qt::WidgetShortcut);
  connect(deletion, &QShortcut::activated, this, [this] { remove(tblTyped_->currentRow()); });
}

void GoodsPage::chooseSheet() {
  frmGoodsIn chosen(keys_, shopToBe(), window());
  if (chosen.exec() != QDialog::Accepted) return;
  answers_.shop.sheet = chosen.sheet();
  cmdNoSheet_->setEnabled(true);
  lblSheet_->setText(tr("%1：%2 行，开店时导入")
                         .arg(qtText(chosen.sheet().file.filename().string()))
                         .arg(chosen.taken().addedCount + chosen.taken().changedCount));
}

void GoodsPage::dropSheet() {
  answers_.shop.sheet.reset();
  cmdNoSheet_->setEnabled(false);
  lblSheet_->setText(tr("没有选（.xlsx 或 .csv，第一行是列名）"));
}

TypedGoods GoodsPage::typed() const {
  TypedGoods goods;
  for (std::size_t i = 0; i < kFields; ++i)
    goods.*kParts[i] = fields_[i]->text().trimmed().toStdString();
  return goods;
}

void GoodsPage::show(const TypedGoods& goods) {
  for (std::size_t i = 0; i < kFields; ++i) fields_[i]->setText(qtText(goods.*kParts[i]));
}

QString GoodsPage::add() {
  const TypedGoods goods = typed();
  const GoodsPreview tried = tryGoods(goods);
  if (!tried.refused.empty()) return tr("%1。").arg(qtText(tried.refused.front().reason));
  const std::size_t row = answers_.shop.add(goods);
  show({});
  showList();
  tblTyped_->setCurrentCell(static_cast<int>(row), 0);
  lblTyped_->setText(tried.doubts.empty()
                         ? tr("已加入 %1。").arg(qtText(goods.name))
                         : tr("已加入 %1。请看一看：%2。")
                               .arg(qtText(goods.name), qtText(tried.doubts.front().reason)));
  return {};
}

void GoodsPage::addAndGoOn() {
  const QString refused = add();
  if (!refused.isEmpty()) lblTyped_->setText(refused);
  fields_.front()->setFocus();
  fields_.front()->selectAll();
}

void GoodsPage::showList() {
  const auto& list = answers_.shop.goods;
  tblTyped_->setRowCount(static_cast<int>(list.size()));
  for (std::size_t row = 0; row < list.size(); ++row) {
    for (std::size_t column = 0; column < kFields; ++column) {
      tblTyped_->setItem(static_cast<int>(row), static_cast<int>(column),
                         new QTableWidgetItem(qtText(list[row].*kParts[column])));
    }
  }
}

void GoodsPage::correct(int row) {
  if (row < 0) return;
  show(answers_.shop.goods[static_cast<std::size_t>(row)]);
  remove(row);
  fields_.front()->setFocus();
}

void GoodsPage::remove(int row) {
  if (row < 0) return;
  answers_.shop.goods.erase(answers_.shop.goods.begin() + row);
  showList();
}

QString GoodsPage::take() {
  const bool isEmpty =
      std::ranges::all_of(fields_, [](QLineEdit* field) { return field->text().isEmpty(); });
  if (isEmpty) return {};
  const QString refused = add();
  return refused.isEmpty() ? refused : refuse(fields_.front(), refused);
}
