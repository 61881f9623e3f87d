#include "settings/frmKeyset.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "app/posMod.h"
#include "base/NumberText.h"
#include "platform/KeyName.h"
#include "platform/QtText.h"
#include "settings/KeyBox.h"
#include "settings/KeyFunctions.h"
#include "settings/QuickKeyModel.h"
#include "shell/Modal.h"
#include "shell/Noted.h"

namespace {

template <typename Control>
Control* named(Control* control, const QString& name) {
  control->setObjectName(name);
  return control;
}

}  // namespace

frmKeyset::frmKeyset(posMod& pos, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kMapped, parent), pos_(pos) {
  setObjectName("frmKeyset");
  setWindowTitle(tr("键盘设置"));
  auto* instruction =
      named(new QLabel(tr(
                "定义前台销售的各功能按钮：按住[Tab]键或[Alt]+[\"各功能名称右侧带下划线字母(数字)"
                "\"]选择各功能右边方框，按键盘上希望定义的该功能的键。[确定]按钮保存设定，[取消]"
                "不保存设定。")),
            "Label1");
  instruction->setWordWrap(true);
  lblShared_ = named(new QLabel, "lblShared");
  lblShared_->setWordWrap(true);
  lblShared_->setMinimumHeight(lblShared_->fontMetrics().height());  // nothing moves when it speaks

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(24, 12, 24, 12);
  layout->setSpacing(8);
  layout->addWidget(instruction);
  layout->addWidget(functionGrid());
  layout->addWidget(lblShared_);
  layout->addWidget(quickKeyFrame(), 1);
  layout->addWidget(buttons());

  walkThrough(controls());
  showSharedKeys();
  resize(960, 640);
}

// A key box takes every key for itself.
bool frmKeyset::handleKey(const QObject* watched, const QKeyEvent& event) {
  return !qobject_cast<const KeyBox*>(watched) && KeyDrivenDialog::handleKey(watched, event);
}

QWidget* frmKeyset::functionGrid() {
  auto* area = new QWidget;
  auto* grid = new QGridLayout(area);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(6);
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    const KeyFunction& function = keyFunctions()[i];
    KeyBox* box = named(new KeyBox, function.box);
    box->setCode(pos_.gKeyBoard.*function.field);
    connect(box, &QLineEdit::textChanged, this, &frmKeyset::showSharedKeys);
    auto* label = new QLabel(function.label());
    label->setBuddy(box);
    auto* caption = new QVBoxLayout;
    caption->setSpacing(0);
    caption->addWidget(label, 0, Qt::AlignRight);
    caption->addWidget(named(new QLabel(function.onSaleScreen()), "lblEffect"), 0, Qt::AlignRight);
    grid->addLayout(caption, function.row, 2 * function.column);
    grid->addWidget(box, function.row, 2 * function.column + 1);
    boxes_[i] = box;
  }
  for (const int boxColumn : {1, 3, 5}) grid->setColumnStretch(boxColumn, 1);
  return area;
}

QWidget* frmKeyset::quickKeyFrame() {
  auto* frame = named(new QGroupBox(tr("商品快捷键定义")), "Frame1");
  auto* layout = new QHBoxLayout(frame);
  layout->setContentsMargins(12, 4, 12, 8);
  layout->setSpacing(16);
  layout->addWidget(quickKeyFields());
  layout->addWidget(quickKeyList(), 1);
  return frame;
}

QWidget* frmKeyset::quickKeyFields() {
  txtKeyInt_ = named(new KeyBox, "txtKeyInt");
  txtKeyBm_ = named(new QLineEdit, "txtKeyBm");
  connect(txtKeyInt_, &KeyBox::captured, txtKeyBm_, qOverload<>(&QWidget::setFocus));

  auto* cmdAdd = named(new QPushButton(tr("增加")), "cmdAdd");
  auto* cmdEdit = named(new QPushButton(tr("修改")), "cmdEdit");
  auto* cmdDel = named(new QPushButton(tr("删除")), "cmdDel");
  connect(cmdAdd, &QPushButton::clicked, this, &frmKeyset::add);
  connect(cmdEdit, &QPushButton::clicked, this, &frmKeyset::change);
  connect(cmdDel, &QPushButton::clicked, this, &frmKeyset::remove);
  auto* actions = new QHBoxLayout;
  for (QPushButton* action : {cmdAdd, cmdEdit, cmdDel}) actions->addWidget(action);

  auto* area = new QWidget;
  auto* grid = new QGridLayout(area);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(new QLabel(tr("快捷键键值：")), 0, 0, Qt::AlignRight);
  grid->addWidget(txtKeyInt_, 0, 1);
  grid->addWidget(new QLabel(tr("对应商品编码：")), 1, 0, Qt::AlignRight);
  grid->addWidget(txtKeyBm_, 1, 1);
  grid->addLayout(actions, 2, 0, 1, 2);
  lblNote_ = named(new QLabel(tr("不能为上方功能按键设定快捷功能")), "lblNote");
  grid->addWidget(lblNote_, 3, 0, 1, 2);
  grid->setRowStretch(4, 1);
  return area;
}

QWidget* frmKeyset::quickKeyList() {
  auto* list = named(new QTreeView, "ListView1");
  quickKeys_ = new QuickKeyModel(pos_.gKeyBoard.QK, this);
  list->setModel(quickKeys_);
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->setAllColumnsShowFocus(true);
  // What a key is called belongs beside its number.
  list->header()->moveSection(QuickKeyModel::kKeyName, QuickKeyModel::kItemCode);
  list->header()->resizeSection(QuickKeyModel::kKeyCode, 80);
  list->header()->resizeSection(QuickKeyModel::kKeyName, 120);
  connect(list, &QAbstractItemView::clicked, this, &frmKeyset::take);
  connect(list, &QAbstractItemView::activated, this, &frmKeyset::take);
  ListView1_ = list;
  return list;
}

QWidget* frmKeyset::buttons() {
  auto* cmdOk = named(new QPushButton(tr("确定(&O)")), "cmdOk");
  auto* cmdCancel = named(new QPushButton(tr("取消(&E)")), "cmdCancel");
  connect(cmdOk, &QPushButton::clicked, this, &frmKeyset::save);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* area = new QWidget;
  auto* row = new QHBoxLayout(area);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(16);
  row->addStretch();
  row->addWidget(cmdOk);
  row->addWidget(cmdCancel);
  return area;
}

std::vector<QWidget*> frmKeyset::controls() const {
  std::vector<QWidget*> order(boxes_.begin(), boxes_.end());
  for (const char* name :
       {"txtKeyInt", "txtKeyBm", "cmdAdd", "cmdEdit", "cmdDel", "ListView1", "cmdOk", "cmdCancel"})
    order.push_back(findChild<QWidget*>(name));
  return order;
}

void frmKeyset::showSharedKeys() {
  KeyBoard keys = pos_.gKeyBoard;
  putInto(keys);
  const auto shared = sharedKeys(keys);
  for (std::size_t i = 0; i < boxes_.size(); ++i)
    boxes_[i]->setShared(shared.contains(keys.*keyFunctions()[i].field));
  lblShared_->setText(sharedKeysText(keys));
  quickKeys_->setFunctionKeys(functionKeys(keys));
  markShared(*lblNote_, quickKeys_->usesFunctionKey());
}

std::optional<int> frmKeyset::typedQuickKey() {
  const auto code = parseWhole16(txtKeyInt_->text().toStdString());
  if (!code) {
    txtKeyInt_->setFocus();
  } else if (txtKeyBm_->text().isEmpty()) {
    txtKeyBm_->setFocus();
  } else {
    return *code;
  }
  return std::nullopt;
}

void frmKeyset::add() {
  const auto code = typedQuickKey();
  if (!code) return;
  if (quickKeys_->contains(*code)) {
    messageBox(this, tr("该健已有快捷设置！"), tr("注意"), BoxIcon::kInformation);
    return;
  }
  quickKeys_->append({*code, txtKeyBm_->text().toStdString()});
  ListView1_->scrollToBottom();
  nextQuickKey();
}

void frmKeyset::change() {
  const auto code = typedQuickKey();
  if (!code) return;
  quickKeys_->change(*code, txtKeyBm_->text().toStdString());
  nextQuickKey();
}

void frmKeyset::remove() {
  if (const auto code = parseWhole16(txtKeyInt_->text().toStdString()))
    quickKeys_->removeFirst(*code);
  nextQuickKey();
}

void frmKeyset::nextQuickKey() {
  showSharedKeys();
  txtKeyInt_->clear();
  txtKeyBm_->clear();
  txtKeyInt_->setFocus();
}

void frmKeyset::take(const QModelIndex& row) {
  const clsQk& quickKey = quickKeys_->quickKeys()[static_cast<std::size_t>(row.row())];
  txtKeyInt_->setCode(quickKey.QK_int);
  txtKeyBm_->setText(qtText(quickKey.QK_Bm));
  txtKeyBm_->setFocus();
}

void frmKeyset::putInto(KeyBoard& keys) const {
  for (std::size_t i = 0; i < boxes_.size(); ++i)
    if (const auto code = boxes_[i]->code()) keys.*keyFunctions()[i].field = *code;
}

void frmKeyset::save() {
  if (!noted(pos_, this, EntryKind::kSettingsChanged, "KeyBoard")) return;
  KeyBoard& keys = pos_.gKeyBoard;
  putInto(keys);
  keys.ReSetQk();
  keys.QK = quickKeys_->quickKeys();
  keys.SaveSet(pos_.configIni);
  accept();
}
