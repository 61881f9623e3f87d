#include "setup/StartPage.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "setup/FileField.h"

StartPage::StartPage(SetupAnswers& answers)
    : SetupPage(answers),
      cobFrom_(
          choice("cobFrom", tr("开什么店："), {tr("新店铺"), tr("演示店铺"), tr("从备份恢复")})),
      txtBackup_(new FileField("txtBackup")) {
  addRow(tr("备份文件："), txtBackup_);
  asks("txtBackup", txtBackup_->line());
  note_ = note({});
  connect(cobFrom_, &QComboBox::currentIndexChanged, this, &StartPage::show);
  show();
}

void StartPage::show() {
  const QString notes[] = {
      tr("下面几步问店名、小票、操作员、商品和打印机，每一步都已经选好常用的答案。全部答完才建立"
         "店铺；中途退出，什么也不留下。"),
      tr("演示店铺有 300 种商品、5 位会员和 3 位操作员，用来试用：用户编号 1，密码 111。"),
      tr("检查备份文件，用它恢复店铺；备份文件本身不动。"),
  };
  const int from = cobFrom_->currentIndex();
  note_->setText(notes[from]);
  txtBackup_->setEnabled(from == static_cast<int>(NewShop::From::kBackup));
}

QString StartPage::take() {
  answers_.shop.from = static_cast<NewShop::From>(cobFrom_->currentIndex());
  if (answers_.shop.from != NewShop::From::kBackup) return {};
  if (!txtBackup_->isFile()) return refuse(txtBackup_->line(), tr("没有这个备份文件。"));
  answers_.shop.backup = txtBackup_->text().toStdString();
  return {};
}
