#include "shell/FramedFields.h"

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

void layOutFramedFields(QDialog& dialog, QLabel* title,
                        const std::vector<std::pair<QLabel*, QLineEdit*>>& fields,
                        QLayout* buttons) {
  auto* Frame1 = new QFrame(&dialog);
  Frame1->setObjectName("Frame1");
  auto* grid = new QGridLayout(Frame1);
  grid->setContentsMargins(24, 24, 24, 24);
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(16);
  int row = 0;
  for (const auto& [caption, field] : fields) {
    field->setMinimumWidth(280);
    grid->addWidget(caption, row, 0, Qt::AlignRight);
    grid->addWidget(field, row++, 1);
  }
  auto* all = new QVBoxLayout(&dialog);
  all->setContentsMargins(32, 24, 32, 24);
  all->setSpacing(20);
  all->setSizeConstraint(QLayout::SetFixedSize);
  all->addWidget(title);
  all->addWidget(Frame1);
  all->addLayout(buttons);
}

void hidePassword(QLineEdit* edit) {
  edit->setEchoMode(QLineEdit::Password);
  edit->setContextMenuPolicy(Qt::NoContextMenu);
}
