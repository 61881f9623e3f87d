#include "setup/DevicesPage.h"

#include <QComboBox>
#include <QGridLayout>
#include <QPushButton>

#include "app/posMod.h"
#include "settings/PosSetLists.h"

DevicesPage::DevicesPage(SetupAnswers& answers, const posMod& pos)
    : SetupPage(answers), lists_(new PosSetLists(answers.till)) {
  grid().addWidget(lists_, 0, 0, 1, 2);
  for (QComboBox* list : lists_->lists()) asks(list->objectName().toLatin1().constData(), list);
  auto* cmdTest = asks("cmdTest", new QPushButton(tr("测试(&T)")));
  connect(cmdTest, &QPushButton::clicked, this,
          [this, &pos] { lists_->test(*pos.ports, pos.clock); });
  grid().addWidget(cmdTest, 1, 0, 1, 2, Qt::AlignLeft);
  note(tr(
      "插在 USB 口或并口上、不用装驱动的小票打印机选 LPT1，第二台选 LPT2；在系统里装好了驱动的选 "
      "USB。以后可以在主菜单的收银设置里更改。"));
}

// The colours are another page's.
QString DevicesPage::take() {
  ClsPosSet chosen = lists_->chosen();
  for (const auto colour : {&ClsPosSet::C1, &ClsPosSet::C2, &ClsPosSet::C3, &ClsPosSet::C4,
                            &ClsPosSet::C5, &ClsPosSet::C6}) {
    chosen.*colour = answers_.till.*colour;
  }
  answers_.till = chosen;
  return {};
}
