#include "reports/ExportName.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include "shell/Modal.h"

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("ExportName", text);
}

void dress(QFileDialog& dialog) {
  dialog.setObjectName("dlgExport");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setViewMode(QFileDialog::List);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);  // asked here, in the till's words
  dialog.setNameFilters({tr("Excel 表格 (*.xlsx)"), tr("CSV 文件 (*.csv)")});
  dialog.setLabelText(QFileDialog::LookIn, tr("位置："));
  dialog.setLabelText(QFileDialog::FileName, tr("文件名(&N)："));
  dialog.setLabelText(QFileDialog::FileType, tr("类型："));
  dialog.setLabelText(QFileDialog::Accept, tr("保存(&S)"));
  dialog.setLabelText(QFileDialog::Reject, tr("取消"));
}

QString withSuffix(const QString& file, bool csvChosen) {
  const QString suffix = QFileInfo(file).suffix().toLower();
  if (suffix == "csv" || suffix == "xlsx") return file;
  return file + (csvChosen ? ".csv" : ".xlsx");
}

}  // namespace

QString askExportName(QWidget* parent, const QString& proposed) {
  QFileDialog dialog(parent, tr("导出到"),
                     QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  dress(dialog);
  dialog.selectFile(proposed);
  if (dialog.exec() != QDialog::Accepted) return {};
  const bool csvChosen = dialog.selectedNameFilter().contains(".csv");
  const QString file = withSuffix(dialog.selectedFiles().constFirst(), csvChosen);
  const bool stays =
      QFileInfo::exists(file) &&
      !askYesNo(parent, tr("文件已经存在，要覆盖吗？\n%1").arg(file), tr("导出到"), false);
  return stays ? QString() : file;
}
