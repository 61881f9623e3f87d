#include "shell/frmInput.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/ShownText.h"

frmInput::frmInput(const KeyBoard& keys, QWidget* parent)
    : KeyDrivenDialog(keys, EnterKey::kMapped, parent),
      lblTitle_(label("lblTitle", {})),
      lblMsg_(label("lblMsg", {})),
      txtPrice_(field("txtPrice")) {
  setObjectName("frmInput");
  for (QLabel* text : {lblTitle_, lblMsg_}) {
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
  }
  txtPrice_->setMinimumWidth(360);
  QPushButton* cmdOk = button("cmdOk", tr("确定"));
  connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(32, 24, 32, 24);
  layout->setSpacing(16);
  layout->addWidget(lblTitle_);
  layout->addWidget(lblMsg_);
  layout->addWidget(txtPrice_);
  layout->addWidget(cmdOk, 0, Qt::AlignRight);
  onEnter(txtPrice_, [this] { accept(); });
}

QString frmInput::init(const QString& title, const QString& message) {
  lblTitle_->setText(title.isEmpty() ? tr("没有定价") : shownText(title));
  lblMsg_->setText(message.isEmpty() ? tr("请输入价格(元)：") : shownText(message));
  setWindowTitle(lblTitle_->text());
  txtPrice_->clear();
  adjustSize();
  return exec() == Accepted ? txtPrice_->text() : QString();
}
