#include "goodsin/frmGoodsIn.h"

#include <QCompleter>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include "app/posMod.h"
#include "base/Failure.h"
#include "goodsin/dlgGoodsPreview.h"
#include "platform/QtText.h"
#include "shell/Modal.h"
#include "shell/ShownText.h"
#include "shell/frmMenu.h"
#include "shop/GoodsImport.h"
#include "store/Connection.h"

namespace {

constexpr int kWidth = 800, kHeight = 600;  // pixels

std::filesystem::path pathOf(const QLineEdit& field) {
  return field.text().trimmed().toStdString();
}

}  // namespace

frmGoodsIn::frmGoodsIn(posMod& pos, QWidget* parent)
    : frmGoodsIn(pos.gKeyBoard, openShop(*pos.gConn), parent) {}

frmGoodsIn::frmGoodsIn(const KeyBoard& keys, GoodsTarget target, QWidget* parent)
    : KeyDrivenDialog(keys, EnterKey::kMapped, parent),
      target_(std::move(target)),
      txtFile_(field("txtFile")),
      tblMapping_(made("tblMapping", new QTableWidget(0, 2, this))),
      txtName_(field("txtName")),
      cmdOk_(button("cmdOk", tr("预览(&S)"))),
      cmdCancel_(button("cmdCancel", tr("取消(&C)"))),
      lblHint_(label("lblHint", tr("表格文件（.xlsx 或 .csv），第一行是列名。按回车键打开。"))) {
  setObjectName("frmGoodsIn");
  setWindowTitle(tr("导入商品"));
  txtFile_->setText(QDir::homePath() + '/');
  completePaths();
  arrange();
  onEnter(txtFile_, [this] { openFile(); });
  onEnter(tblMapping_, [this] { chooseField(tblMapping_->currentRow()); });
  connect(tblMapping_, &QTableWidget::cellDoubleClicked, this, &frmGoodsIn::chooseField);
  onEnter(txtName_, [this] { preview(); });
  // Enter in the list of files comes this way, before the file chosen there is in the field.
  connect(txtFile_, &QLineEdit::returnPressed, this, &frmGoodsIn::openFile, Qt::QueuedConnection);
  connect(cmdOk_, &QPushButton::clicked, this, &frmGoodsIn::preview);
  connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
  connect(txtFile_, &QLineEdit::textEdited, this, [this] {
    sheet_.mapping = {};
    showMapping();
  });
  showMapping();
}

void frmGoodsIn::arrange() {
  tblMapping_->setHorizontalHeaderLabels({tr("表里的列"), tr("是什么")});
  tblMapping_->setSelectionBehavior(QAbstractItemView::SelectRows);
  tblMapping_->setSelectionMode(QAbstractItemView::SingleSelection);
  tblMapping_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tblMapping_->setTabKeyNavigation(false);
  tblMapping_->setAlternatingRowColors(true);
  tblMapping_->verticalHeader()->hide();
  tblMapping_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  tblMapping_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  tblMapping_->horizontalHeader()->setHighlightSections(false);
  tblMapping_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  lblHint_->setWordWrap(true);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(32, 24, 32, 24);
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(12);
  grid->addWidget(label("lblFile", tr("文件：")), 0, 0, Qt::AlignRight | Qt::AlignVCenter);
  grid->addWidget(txtFile_, 0, 1);
  grid->addWidget(lblHint_, 1, 0, 1, 2);
  grid->addWidget(tblMapping_, 2, 0, 1, 2);
  grid->addWidget(label("lblName", tr("记住为：")), 3, 0, Qt::AlignRight | Qt::AlignVCenter);
  grid->addWidget(txtName_, 3, 1);
  grid->addLayout(buttonRow({cmdOk_, cmdCancel_}), 4, 0, 1, 2);
  grid->setRowStretch(2, 1);
  walkThrough({txtFile_, tblMapping_, txtName_, cmdOk_, cmdCancel_});
  resize(kWidth, kHeight);
}

void frmGoodsIn::completePaths() {
  auto* completer = new QCompleter(this);
  auto* files = new QFileSystemModel(completer);
  files->setRootPath("/");
  files->setNameFilters({"*.xlsx", "*.csv", "*.txt"});
  files->setNameFilterDisables(false);
  files->setFilter(QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot);
  completer->setModel(files);
  txtFile_->setCompleter(completer);
}

void frmGoodsIn::openFile() {
  if (QFileInfo(txtFile_->text()).isDir()) {
    if (!txtFile_->text().endsWith('/')) txtFile_->insert("/");
    return;
  }
  try {
    const OpenedSheet sheet = openGoodsSheet(pathOf(*txtFile_));
    sheet_.mapping = target_.mappingFor(sheet.headings);
    showMapping();
    if (!sheet_.mapping.isGuessed && sheet_.mapping.fault().empty()) return preview();
    tblMapping_->setCurrentCell(0, 1);
    tblMapping_->setFocus();
  } catch (const Failure& failure) {
    messageBox(this, qtText(failure.what()), windowTitle(), BoxIcon::kExclamation);
    focusWhole(txtFile_);
  }
}

void frmGoodsIn::showMapping() {
  tblMapping_->setRowCount(static_cast<int>(sheet_.mapping.columns.size()));
  for (int row = 0; row < tblMapping_->rowCount(); ++row) {
    const GoodsMapping::Column& column = sheet_.mapping.columns[static_cast<std::size_t>(row)];
    tblMapping_->setItem(row, 0, new QTableWidgetItem(shownText(qtText(column.heading))));
    tblMapping_->setItem(
        row, 1,
        new QTableWidgetItem(column.field ? qtText(headingOf(*column.field)) : tr("（不读）")));
  }
  const bool isOpen = !sheet_.mapping.columns.empty();
  for (QWidget* control : std::initializer_list<QWidget*>{tblMapping_, txtName_, cmdOk_})
    control->setEnabled(isOpen);
  lblHint_->setText(isOpen ? tr("请看看每一列猜得对不对，不对的按回车键改；都对了选“预览”。")
                           : tr("表格文件（.xlsx 或 .csv），第一行是列名。按回车键打开。"));
}

void frmGoodsIn::chooseField(int row) {
  if (row < 0) return;
  frmMenu menu(keys(), this);
  menu.setWindowTitle(tr("这一列是什么"));
  menu.AddMenu(tr("（不读）"), "none");
  for (std::size_t field = 0; field < kGoodsFields; ++field) {
    menu.AddMenu(qtText(headingOf(static_cast<GoodsField>(field))), QString::number(field));
  }
  const QString chosen = menu.ShowMenu(0);
  if (chosen.isEmpty()) return;
  const bool isNone = chosen == "none";
  sheet_.mapping.choose(
      static_cast<std::size_t>(row),
      isNone ? std::nullopt : std::optional(static_cast<GoodsField>(chosen.toUInt())));
  showMapping();
  tblMapping_->setCurrentCell(row, 1);
  tblMapping_->setFocus();
}

void frmGoodsIn::preview() {
  if (sheet_.mapping.columns.empty()) return openFile();
  try {
    if (const std::string fault = sheet_.mapping.fault(); !fault.empty()) {
      messageBox(this, qtText(fault), windowTitle(), BoxIcon::kInformation);
      return tblMapping_->setFocus();
    }
    sheet_.mappingName = txtName_->text().trimmed().toStdString();
    if (!sheet_.mappingName.empty()) target_.keepMapping(sheet_.mappingName, sheet_.mapping);
  } catch (const Failure& failure) {
    messageBox(this, qtText(failure.what()), windowTitle(), BoxIcon::kExclamation);
    return focusWhole(txtName_);
  }
  sheet_.file = pathOf(*txtFile_);
  dlgGoodsPreview shown(keys(), target_, sheet_, this);
  if (shown.exec() != QDialog::Accepted) return focusWhole(txtFile_);
  taken_ = shown.taken();
  if (target_.import) {
    messageBox(this,
               tr("已导入商品：新增 %1 行，改动 %2 行。")
                   .arg(taken_->addedCount)
                   .arg(taken_->changedCount),
               windowTitle(), BoxIcon::kInformation);
  }
  accept();
}
