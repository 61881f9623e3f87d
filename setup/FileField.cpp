#include "setup/FileField.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

FileField::FileField(const char* name) : line_(new QLineEdit) {
  line_->setObjectName(name);
  auto* browsing = new QPushButton(tr("选择文件"));
  connect(browsing, &QPushButton::clicked, this, &FileField::browse);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(12);
  row->addWidget(line_, 1);
  row->addWidget(browsing);
}

QString FileField::text() const {
  return line_->text().trimmed();
}

bool FileField::isFile() const {
  return QFileInfo(text()).isFile();
}

void FileField::browse() {
  const QString chosen = QFileDialog::getOpenFileName(this, tr("选择文件"), text(), {}, nullptr,
                                                      QFileDialog::DontUseNativeDialog);
  if (!chosen.isEmpty()) line_->setText(chosen);
}
