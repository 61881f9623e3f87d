#include "shifts/dlgCashCount.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/NumberText.h"
#include "platform/QtText.h"
#include "shell/Modal.h"

namespace {

constexpr int kMostDigits = 5;
constexpr int kRows = 4;  // of fields, in two columns

/// Digits only; nothing typed is nothing there.
std::optional<std::int32_t> piecesOf(const QString& text) {
  if (text.isEmpty()) return 0;
  bool isNumber = false;
  const std::int32_t pieces = text.toInt(&isNumber);
  return isNumber && pieces >= 0 ? std::optional(pieces) : std::nullopt;
}

}  // namespace

dlgCashCount::dlgCashCount(const KeyBoard& keys, QWidget* parent)
    : KeyDrivenDialog(keys, EnterKey::kMapped, parent), lblSum_(label("lblSum", {})) {
  setObjectName("dlgCashCount");
  setWindowTitle(tr("清点钱箱"));
  int number = 0;
  for (QLineEdit*& each : pieces_) {
    each = field(qPrintable(QString("pieces%1").arg(number++)));
    each->setMaxLength(kMostDigits);
    each->setAlignment(Qt::AlignRight);
    connect(each, &QLineEdit::textChanged, this, &dlgCashCount::showSum);
  }
  QPushButton* cmdOk = button("cmdOk", tr("清点完了"));
  QPushButton* cmdCancel = button("cmdCancel", tr("取消"));
  for (std::size_t at = 0; at + 1 < pieces_.size(); ++at) enterLeads(pieces_[at], pieces_[at + 1]);
  enterLeads(pieces_.back(), cmdOk);
  connect(cmdOk, &QPushButton::clicked, this, &dlgCashCount::check);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  arrange(cmdOk, cmdCancel);
  showSum();
}

void dlgCashCount::arrange(QPushButton* cmdOk, QPushButton* cmdCancel) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(12);
  for (int at = 0; at < static_cast<int>(pieces_.size()); ++at) {
    const Currency piece = kCashPieces[static_cast<std::size_t>(at)];
    QLabel* caption = label(qPrintable(QString("lblPiece%1").arg(at)),
                            tr("%1 元 ×", "worth of a note or coin, before the field of its pieces")
                                .arg(qtText(generalNumber(piece))));
    const int column = at / kRows * 2;
    grid->addWidget(caption, at % kRows, column, Qt::AlignRight);
    pieces_[static_cast<std::size_t>(at)]->setFixedWidth(140);
    grid->addWidget(pieces_[static_cast<std::size_t>(at)], at % kRows, column + 1);
  }
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(32, 24, 32, 24);
  all->setSpacing(20);
  all->setSizeConstraint(QLayout::SetFixedSize);
  all->addWidget(label("Label1", tr("钱箱里各有几张、几枚？（含备用金）")));
  all->addLayout(grid);
  all->addWidget(lblSum_);
  all->addLayout(buttonRow({cmdOk, cmdCancel}));
}

std::optional<CashCount> dlgCashCount::typed() const {
  std::optional<CashCount> count(std::in_place);
  for (std::size_t at = 0; at < pieces_.size(); ++at) {
    const std::optional<std::int32_t> pieces = piecesOf(pieces_[at]->text());
    if (!pieces) return std::nullopt;
    count->pieces[at] = *pieces;
  }
  return count;
}

void dlgCashCount::showSum() {
  const std::optional<CashCount> count = typed();
  lblSum_->setText(count ? tr("合计：%1 元").arg(qtText(twoDecimals(count->sum())))
                         : tr("合计：有不是整数的张数"));
}

void dlgCashCount::check() {
  const std::optional<CashCount> count = typed();
  if (!count) {
    for (QLineEdit* each : pieces_) {
      if (!piecesOf(each->text())) return focusWhole(each);
    }
  }
  counted_ = *count;
  accept();
}
