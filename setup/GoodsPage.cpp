#include "setup/GoodsPage.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <utility>

#include "platform/QtText.h"
#include "setup/FileField.h"

GoodsPage::GoodsPage(SetupAnswers& answers, Clock clock)
    : SetupPage(answers),
      clock_(std::move(clock)),
      master_(file("txtGoods", tr("商品资料（spda）："))),
      barcodes_(file("txtBarcodes", tr("条码价格（tmda）："))) {
  addRow(tr("或者录入几种："), typedRows());
  auto* cmdLook = asks("cmdLook", new QPushButton(tr("检查(&C)")));
  connect(cmdLook, &QPushButton::clicked, this, &GoodsPage::look);
  grid().addWidget(cmdLook, grid().rowCount(), 0, Qt::AlignRight | Qt::AlignTop);
  preview_ = new QLabel(
      tr("两个 CSV 文件的列名见 tilladmin import --help。现在没有商品的话，都空着就行。"));
  preview_->setObjectName("lblPreview");
  preview_->setTextFormat(Qt::PlainText);
  preview_->setWordWrap(true);
  preview_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  preview_->setMinimumHeight(190);
  grid().addWidget(preview_, grid().rowCount() - 1, 1);
}

FileField* GoodsPage::file(const char* name, const QString& caption) {
  auto* field = new FileField(name);
  addRow(caption, field);
  asks(name, field->line());
  return field;
}

QWidget* GoodsPage::typedRows() {
  auto* area = new QWidget;
  auto* layout = new QGridLayout(area);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(6);
  layout->setColumnStretch(0, 3);
  layout->setColumnStretch(1, 4);
  layout->setColumnStretch(2, 2);
  int column = 0;
  for (const QString& heading : {tr("条码"), tr("名称"), tr("零售价")})
    layout->addWidget(new QLabel(heading), 0, column++);
  int number = 0;
  for (Row& row : rows_) {
    ++number;
    const auto cell = [&](const char* name, int place) {
      auto* line = asks((name + std::to_string(number)).c_str(), new QLineEdit);
      layout->addWidget(line, number, place);
      return line;
    };
    row = {cell("txtBarcode", 0), cell("txtName", 1), cell("txtPrice", 2)};
  }
  return area;
}

QString GoodsPage::takeFile(const char* table, FileField& file) {
  if (file.text().isEmpty()) return {};
  if (!file.isFile()) return refuse(file.line(), tr("没有这个文件。"));
  answers_.shop.files[table] = file.text().toStdString();
  return {};
}

QString GoodsPage::takeRows() {
  answers_.shop.goods.clear();
  answers_.shop.files.clear();
  for (const auto& [table, file] : {std::pair("spda", master_), std::pair("tmda", barcodes_)}) {
    const QString refused = takeFile(table, *file);
    if (!refused.isEmpty()) return refused;
  }
  for (const Row& row : rows_) {
    const TypedGoods goods{row.barcode->text().toStdString(), row.name->text().toStdString(),
                           row.price->text().toStdString()};
    if ((goods.barcode + goods.name + goods.price).empty()) continue;
    const std::string refusal = refusalOf(goods);
    if (!refusal.empty()) return refuse(row.barcode, qtText(refusal));
    answers_.shop.goods.push_back(goods);
  }
  return {};
}

void GoodsPage::look() {
  const QString refused = takeRows();
  if (!refused.isEmpty()) return preview_->setText(refused);
  const GoodsTrial trial = tryGoods(answers_.shop, clock_);
  if (!trial.refusal.empty()) return preview_->setText(qtText(trial.refusal));
  QStringList lines = {tr("有 %1 个条码可以放进店里。").arg(trial.count)};
  for (const TypedGoods& goods : trial.first) {
    lines +=
        tr("%1　%2　%3 元").arg(qtText(goods.barcode), qtText(goods.name), qtText(goods.price));
  }
  if (!trial.doubts.empty()) lines += tr("请看一看：%1").arg(qtText(trial.doubts.front()));
  preview_->setText(lines.join('\n'));
}

QString GoodsPage::take() {
  const QString refused = takeRows();
  if (!refused.isEmpty()) return refused;
  if (answers_.shop.goods.empty() && answers_.shop.files.empty()) return {};
  const GoodsTrial trial = tryGoods(answers_.shop, clock_);
  return trial.refusal.empty() ? QString() : refuse(master_->line(), qtText(trial.refusal));
}
