#include "settings/frmPosSet.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/posMod.h"
#include "settings/PosSetLists.h"
#include "shell/Noted.h"

frmPosSet::frmPosSet(posMod& pos, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kMapped, parent), pos_(pos) {
  setObjectName("frmPosSet");
  setWindowTitle(tr("收银设置"));
  auto* heading = new QLabel(tr("POS机 设 置"));
  heading->setObjectName("Label1");
  lists_ = new PosSetLists(pos.gPosSet);
  auto* hint = new QLabel(tr("* 按向上下光标键行行选择"));
  hint->setObjectName("lblHint");

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(32, 20, 32, 20);
  layout->setSpacing(16);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->addWidget(heading, 0, Qt::AlignHCenter);
  layout->addWidget(lists_);
  layout->addWidget(hint);
  layout->addWidget(buttons());

  std::vector<QWidget*> controls(lists_->lists().begin(), lists_->lists().end());
  for (const char* name : {"cmdTest", "cmdOk", "cmdCancel"})
    controls.push_back(findChild<QWidget*>(name));
  walkThrough(controls);
}

QWidget* frmPosSet::buttons() {
  const auto button = [this](const char* name, const QString& text, auto pressed) {
    auto* push = new QPushButton(text);
    push->setObjectName(name);
    connect(push, &QPushButton::clicked, this, pressed);
    return push;
  };
  auto* area = new QWidget;
  auto* row = new QHBoxLayout(area);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(16);
  row->addWidget(
      button("cmdTest", tr("测试(&T)"), [this] { lists_->test(*pos_.ports, pos_.clock); }));
  row->addStretch();
  row->addWidget(button("cmdOk", tr("确定(&O)"), &frmPosSet::save));
  row->addWidget(button("cmdCancel", tr("取消(&E)"), &frmPosSet::reject));
  return area;
}

void frmPosSet::save() {
  if (!noted(pos_, this, EntryKind::kSettingsChanged, "POS")) return;
  pos_.gPosSet = lists_->chosen();
  pos_.gPosSet.SaveSet(pos_.configIni);
  pos_.ShowMouse(pos_.gPosSet.VMouse != 0);
  accept();
}
