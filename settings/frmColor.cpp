#include "settings/frmColor.h"

#include <QColorDialog>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <optional>

#include "app/posMod.h"
#include "base/NumberText.h"
#include "shell/Modal.h"
#include "shell/Noted.h"
#include "shell/Style.h"

namespace {

/// What one of the colours is for.
struct Role {
  const char* caption;
  int ClsPosSet::*setting;
  int byDefault;
};

constexpr std::array<Role, 6> kRoles = {{
    {QT_TRANSLATE_NOOP("frmColor", "窗口背景色："), &ClsPosSet::C1, 0x804000},
    {QT_TRANSLATE_NOOP("frmColor", "状态行背景色："), &ClsPosSet::C2, 0x000000},
    {QT_TRANSLATE_NOOP("frmColor", "状态行销售信息颜色："), &ClsPosSet::C3, 0x0000FF},
    {QT_TRANSLATE_NOOP("frmColor", "状态行会员信息颜色："), &ClsPosSet::C4, 0x00FF00},
    {QT_TRANSLATE_NOOP("frmColor", "首行大标题颜色："), &ClsPosSet::C5, 0x00FFFF},
    {QT_TRANSLATE_NOOP("frmColor", "次行信息颜色："), &ClsPosSet::C6, 0x000000},
}};

constexpr int kLargestColour = 0xFFFFFF;
constexpr QSize kSwatch(64, 32);

int settingOf(const QColor& colour) {
  return colour.blue() << 16 | colour.green() << 8 | colour.red();
}

std::optional<int> numberIn(const QLineEdit& box) {
  return parseWhole32(box.text().toStdString());
}

/// The colour, or a crossed-out field where there is none.
QPixmap swatch(std::optional<int> colour) {
  QPixmap picture(kSwatch);
  picture.fill(colour ? settingColour(*colour) : QColor(Qt::white));
  QPainter painter(&picture);
  const QRect frame = picture.rect().adjusted(0, 0, -1, -1);
  painter.setPen(QColor(0x66, 0x78, 0x8a));
  painter.drawRect(frame);
  if (!colour) painter.drawLine(frame.bottomLeft(), frame.topRight());
  return picture;
}

}  // namespace

frmColor::frmColor(posMod& pos, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kMapped, parent), pos_(pos) {
  setObjectName("frmColor");
  setWindowTitle(tr("颜色设置"));
  cdColor_ = new QColorDialog(this);
  cdColor_->setObjectName("cdColor");
  cdColor_->setOption(QColorDialog::DontUseNativeDialog);

  auto* Label1 = new QLabel(tr("颜色设置"));
  Label1->setObjectName("Label1");
  auto* Label4 = new QLabel(tr("设为空，则可恢复为默认设置"));
  Label4->setObjectName("Label4");
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(32, 20, 32, 20);
  layout->setSpacing(14);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->addWidget(Label1, 0, Qt::AlignHCenter);
  layout->addWidget(colourFrame());
  layout->addWidget(Label4);
  layout->addWidget(buttonFrame());

  std::vector<QWidget*> controls;
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    controls.push_back(boxes_[i]);
    controls.push_back(findChild<QPushButton*>("cmdViewColor" + QString::number(i)));
  }
  for (const char* name : {"cmdOk", "cmdCancel"}) controls.push_back(findChild<QWidget*>(name));
  walkThrough(controls);
}

QWidget* frmColor::colourFrame() {
  auto* Frame1 = new QFrame;
  Frame1->setObjectName("Frame1");
  auto* grid = new QGridLayout(Frame1);
  grid->setContentsMargins(24, 20, 24, 20);
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(10);
  for (std::size_t i = 0; i < boxes_.size(); ++i) addRow(*grid, i);
  return Frame1;
}

QWidget* frmColor::buttonFrame() {
  auto* cmdOk = new QPushButton(tr("确定(&O)"));
  cmdOk->setObjectName("cmdOk");
  connect(cmdOk, &QPushButton::clicked, this, &frmColor::save);
  auto* cmdCancel = new QPushButton(tr("取消(&E)"));
  cmdCancel->setObjectName("cmdCancel");
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* Frame2 = new QFrame;
  Frame2->setObjectName("Frame2");
  auto* row = new QHBoxLayout(Frame2);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(16);
  row->addStretch();
  row->addWidget(cmdOk);
  row->addWidget(cmdCancel);
  return Frame2;
}

void frmColor::addRow(QGridLayout& grid, std::size_t index) {
  const QString number = QString::number(index);
  auto* box = new QLineEdit;
  box->setObjectName("txtColor" + number);
  swatches_[index] = new QLabel;
  swatches_[index]->setObjectName("lblColor" + number);
  auto* view = new QPushButton(tr("选择…"));
  view->setObjectName("cmdViewColor" + number);
  boxes_[index] = box;
  connect(box, &QLineEdit::textChanged, this, [this, index] { showSwatch(index); });
  connect(view, &QPushButton::clicked, this, [this, index] { choose(index); });
  box->setText(QString::number(pos_.gPosSet.*kRoles[index].setting));

  const int row = static_cast<int>(index);
  grid.addWidget(new QLabel(tr(kRoles[index].caption)), row, 0, Qt::AlignRight | Qt::AlignVCenter);
  grid.addWidget(box, row, 1);
  grid.addWidget(swatches_[index], row, 2);
  grid.addWidget(view, row, 3);
}

void frmColor::showSwatch(std::size_t index) {
  const bool empty = boxes_[index]->text().isEmpty();
  swatches_[index]->setPixmap(swatch(empty ? kRoles[index].byDefault : numberIn(*boxes_[index])));
}

// A cancelled colour dialog leaves the box with the colour that the dialog started with.
void frmColor::choose(std::size_t index) {
  const auto number = numberIn(*boxes_[index]);
  if (number && *number >= 0 && *number <= kLargestColour) dialogColour_ = *number;
  cdColor_->setCurrentColor(settingColour(dialogColour_));
  if (cdColor_->exec() == QDialog::Accepted) dialogColour_ = settingOf(cdColor_->selectedColor());
  boxes_[index]->setText(QString::number(dialogColour_));
}

void frmColor::save() {
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    const bool empty = boxes_[i]->text().isEmpty();
    const auto colour = empty ? kRoles[i].byDefault : numberIn(*boxes_[i]);
    if (!colour) {
      messageBox(this, tr("“%1”不是颜色的数字！").arg(boxes_[i]->text()));
      boxes_[i]->setFocus();
      boxes_[i]->selectAll();
      return;
    }
    pos_.gPosSet.*kRoles[i].setting = *colour;
  }
  if (!noted(pos_, this, EntryKind::kSettingsChanged, "Color")) return;
  pos_.gPosSet.SaveSet(pos_.configIni);
  accept();
}
