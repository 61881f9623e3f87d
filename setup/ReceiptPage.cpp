#include "setup/ReceiptPage.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>

#include "platform/QtText.h"
#include "saleslib/ClsSysParam.h"
#include "setup/ReceiptPreview.h"

ReceiptPage::ReceiptPage(SetupAnswers& answers, const Clock& clock)
    : SetupPage(answers), preview_(new ReceiptPreview(clock)) {
  const QString captions[] = {tr("店名："),       tr("小票文字一："), tr("小票文字二："),
                              tr("小票文字三："), tr("小票文字四："), tr("小票文字五："),
                              tr("小票文字六：")};
  for (std::size_t i = 0; i < shopTexts().size(); ++i) {
    const std::string& name = shopTexts()[i];
    QLineEdit* line = field(name.c_str(), captions[i]);
    line->setText(qtText(answers.shop.parameters[name]));
    connect(line, &QLineEdit::textChanged, this, &ReceiptPage::show);
    texts_.push_back(line);
  }
  cobRounding_ =
      choice("cobRounding", tr("应收金额："), {tr("不舍入"), tr("舍入到角"), tr("舍入到元")});
  cobRounding_->setCurrentIndex(static_cast<int>(NewShop::Rounding::kJiao));
  connect(cobRounding_, &QComboBox::currentIndexChanged, this, &ReceiptPage::show);
  note(tr("右边的小票是样子，随着输入改变。接在 LPT 端口上的打印机只印文字二和文字三。"));
  grid().addWidget(preview_, 0, 2, grid().rowCount(), 1, Qt::AlignTop);
}

void ReceiptPage::store() {
  for (const QLineEdit* line : texts_)
    answers_.shop.parameters[line->objectName().toStdString()] = line->text().toStdString();
  answers_.shop.setRounding(static_cast<NewShop::Rounding>(cobRounding_->currentIndex()));
}

void ReceiptPage::show() {
  store();
  preview_->show(answers_.shop.parameters, answers_.till, "1");
}

QString ReceiptPage::take() {
  store();
  if (texts_.front()->text().trimmed().isEmpty())
    return refuse(texts_.front(), tr("请写店名，它是小票的第一行。"));
  for (QLineEdit* line : texts_) {
    const std::string refusal =
        ClsSysParam::refusal(line->objectName().toStdString(), line->text().toStdString());
    if (!refusal.empty()) return refuse(line, qtText(refusal));
  }
  return {};
}
