#include "reports/ExportDialog.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <utility>

#include "platform/QtText.h"
#include "shell/Modal.h"
#include "shell/ShownText.h"

namespace {

constexpr int kNameWidth = 420;  // pixels

/// What no memory stick takes in a name either.
constexpr const char* kNotInNames = "/\\:*?\"<>|";

}  // namespace

ExportDialog::ExportDialog(const KeyBoard& keys, std::filesystem::path folder,
                           const QString& proposed, QWidget* parent)
    : KeyDrivenDialog(keys, EnterKey::kMapped, parent),
      folder_(std::move(folder)),
      txtName_(field("txtName")),
      OptXlsx_(made("OptXlsx", new QRadioButton(tr("Excel 表格 (.xlsx)"), this))),
      OptCsv_(made("OptCsv", new QRadioButton(tr("CSV 文件 (.csv)"), this))),
      cmdOk_(button("cmdOk", tr("导出(&S)"))),
      cmdCancel_(button("cmdCancel", tr("取消(&C)"))) {
  setObjectName("dlgExport");
  setWindowTitle(tr("导出"));
  txtName_->setText(proposed);
  txtName_->setMinimumWidth(kNameWidth);
  OptXlsx_->setChecked(true);
  arrange();
  for (const QWidget* control : std::initializer_list<QWidget*>{txtName_, OptXlsx_, OptCsv_})
    onEnter(control, [this] { confirm(); });
  connect(cmdOk_, &QPushButton::clicked, this, &ExportDialog::confirm);
  connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
}

void ExportDialog::arrange() {
  QLabel* folder = label("lblFolder", shownText(qtText(folder_.string())));
  folder->setTextFormat(Qt::PlainText);
  folder->setWordWrap(true);
  auto* kinds = new QHBoxLayout;
  kinds->addWidget(OptXlsx_);
  kinds->addWidget(OptCsv_);
  kinds->addStretch();
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(32, 24, 32, 24);
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(16);
  const auto caption = [&](int row, const char* name, const QString& text) {
    grid->addWidget(label(name, text), row, 0, Qt::AlignRight | Qt::AlignVCenter);
  };
  caption(0, "lblIn", tr("文件夹："));
  grid->addWidget(folder, 0, 1);
  caption(1, "lblName", tr("文件名："));
  grid->addWidget(txtName_, 1, 1);
  caption(2, "lblKind", tr("类型："));
  grid->addLayout(kinds, 2, 1);
  grid->addLayout(buttonRow({cmdOk_, cmdCancel_}), 3, 0, 1, 2);
}

QString ExportDialog::name() const {
  QString typed = txtName_->text().trimmed();
  const QString ending = QFileInfo(typed).suffix().toLower();
  if (typed.isEmpty() || ending == "xlsx" || ending == "csv") return typed;
  return typed + (OptCsv_->isChecked() ? ".csv" : ".xlsx");
}

std::filesystem::path ExportDialog::file() const {
  return folder_ / name().toStdString();
}

/// An empty text when the name is a file's.
QString ExportDialog::faultOfName() const {
  const QString wanted = name();
  const auto isRefused = [](QChar character) {
    return character.category() == QChar::Other_Control || QString(kNotInNames).contains(character);
  };
  if (wanted.isEmpty()) return tr("请输入文件名！");
  if (wanted.startsWith('.')) return tr("文件名不能以点开头！");
  if (std::any_of(wanted.begin(), wanted.end(), isRefused))
    return tr("文件名中不能有 %1 这些字符！").arg("/ \\ : * ? \" < > |");
  return {};
}

bool ExportDialog::mayWrite() {
  const QString fault = faultOfName();
  if (!fault.isEmpty()) {
    messageBox(this, fault, tr("注意"), BoxIcon::kInformation);
    return false;
  }
  std::error_code unknown;
  if (!std::filesystem::exists(std::filesystem::symlink_status(file(), unknown))) return true;
  return askYesNo(this, tr("文件已经存在，要覆盖吗？\n%1").arg(name()), tr("导出"), false);
}

void ExportDialog::confirm() {
  if (mayWrite()) return accept();
  focusWhole(txtName_);
}
