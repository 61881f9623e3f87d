#include "setup/SetupPage.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStringList>

SetupPage::SetupPage(SetupAnswers& answers) : answers_(answers), grid_(new QGridLayout(this)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(16);
  grid_->setVerticalSpacing(10);
  grid_->setColumnStretch(1, 1);
}

void SetupPage::addRow(const QString& caption, QWidget* content) {
  const int row = grid_->rowCount();
  grid_->addWidget(new QLabel(caption), row, 0, Qt::AlignRight | Qt::AlignVCenter);
  grid_->addWidget(content, row, 1);
}

QLineEdit* SetupPage::field(const char* name, const QString& caption) {
  auto* line = asks(name, new QLineEdit);
  addRow(caption, line);
  return line;
}

QComboBox* SetupPage::choice(const char* name, const QString& caption, const QStringList& entries) {
  auto* list = asks(name, new QComboBox);
  list->addItems(entries);
  addRow(caption, list);
  return list;
}

QLabel* SetupPage::note(const QString& text) {
  auto* label = new QLabel(text);
  label->setObjectName("lblNote");
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  grid_->addWidget(label, grid_->rowCount(), 0, 1, 2);
  return label;
}

void SetupPage::keepAtTop() {
  grid_->setRowStretch(grid_->rowCount(), 1);
}

QString SetupPage::refuse(QWidget* control, const QString& why) {
  wrong_ = control;
  return why;
}
