#include "shifts/dlgCash.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <optional>

#include "base/Text.h"
#include "shell/FramedFields.h"

namespace {

constexpr int kLongestReason = 40;
constexpr Currency kMost = Currency::fromScaled(1'000'000 * Currency::kScale);

}  // namespace

dlgCash::dlgCash(const KeyBoard& keys, Purpose purpose, QWidget* parent)
    : KeyDrivenDialog(keys, EnterKey::kMapped, parent),
      purpose_(purpose),
      txtAmount_(field("txtAmount")),
      lblSaid_(label("lblSaid", {})) {
  setObjectName("dlgCash");
  const QString title = purpose == Purpose::kFloat ? tr("开班")
                        : purpose == Purpose::kIn  ? tr("存入现金")
                                                   : tr("取出现金");
  setWindowTitle(title);
  std::vector<std::pair<QLabel*, QLineEdit*>> fields = {
      {label("Label2", purpose == Purpose::kFloat ? tr("备用金（元）：") : tr("金额（元）：")),
       txtAmount_}};
  if (purpose != Purpose::kFloat) {
    txtReason_ = field("txtReason");
    txtReason_->setMaxLength(kLongestReason);
    fields.emplace_back(label("Label3", tr("原因：")), txtReason_);
    enterLeads(txtAmount_, txtReason_);
    onEnter(txtReason_, [this] { check(); });
  } else {
    onEnter(txtAmount_, [this] { check(); });
  }
  QPushButton* cmdOk = button("cmdOk", tr("确定"));
  QPushButton* cmdCancel = button("cmdCancel", tr("取消"));
  connect(cmdOk, &QPushButton::clicked, this, &dlgCash::check);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  layOutFramedFields(*this, label("Label1", title), fields, buttonRow({cmdOk, cmdCancel}));
  lblSaid_->setTextFormat(Qt::PlainText);
  lblSaid_->setText(purpose == Purpose::kFloat ? tr("数一数钱箱里的备用金，没有就写 0。")
                                               : QString());
  qobject_cast<QBoxLayout*>(layout())->insertWidget(1, lblSaid_);
}

std::string dlgCash::reason() const {
  return txtReason_ == nullptr ? std::string() : trimmed(txtReason_->text().toStdString());
}

void dlgCash::refuse(const QString& text, QLineEdit* field) {
  lblSaid_->setText(text);
  focusWhole(field);
}

void dlgCash::check() {
  const std::optional<Currency> amount = Currency::parse(txtAmount_->text().toStdString());
  const bool isLargeEnough =
      amount && (purpose_ == Purpose::kFloat ? *amount >= Currency() : *amount > Currency());
  if (!isLargeEnough || *amount > kMost || roundedToFen(*amount) != *amount)
    return refuse(tr("请输入金额，到分为止。"), txtAmount_);
  if (txtReason_ != nullptr && (reason().empty() || hasControlCharacter(reason())))
    return refuse(tr("请写明原因。"), txtReason_);
  amount_ = *amount;
  accept();
}
