#include "settings/frmHelp.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "app/KeyBoard.h"
#include "platform/VirtualKey.h"
#include "settings/KeyFunctions.h"

namespace {

constexpr int kScreenMargin = 48;  // left free around the window
constexpr int kGroupGap = 16;
constexpr int kStep = 60;  // pixels that one key press scrolls

QLabel* named(const char* name, const QString& text) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

void addGroup(QGridLayout& side, const KeyGroup& group) {
  if (side.rowCount() > 1) side.setRowMinimumHeight(side.rowCount(), kGroupGap);
  side.addWidget(named("lblGroup", group.title), side.rowCount(), 0, 1, 2);
  for (const auto& [key, does] : group.rows) {
    const int row = side.rowCount();
    side.addWidget(named("lblKey", key), row, 0);
    side.addWidget(named("lblDoes", does), row, 1);
  }
}

}  // namespace

frmHelp::frmHelp(const KeyBoard& keys, QWidget* parent)
    : KeyDrivenDialog(keys, EnterKey::kMapped, parent), area_(new QScrollArea(this)) {
  setObjectName("frmHelp");
  setWindowTitle(tr("帮助"));
  QPushButton* cmdExit = button("cmdExit", tr("返回(&X)"));
  connect(cmdExit, &QPushButton::clicked, this, &QDialog::accept);

  area_->setWidget(table(keyTable(keys)));
  area_->setWidgetResizable(true);
  area_->setFrameShape(QFrame::NoFrame);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area_->setFocusPolicy(Qt::NoFocus);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(24, 12, 24, 12);
  all->addWidget(label("Label1", tr("现在的按键")), 0, Qt::AlignHCenter);
  all->addWidget(area_, 1);
  if (const QString shared = sharedKeysText(keys); !shared.isEmpty()) {
    QLabel* lblShared = label("lblShared", shared);
    lblShared->setWordWrap(true);
    all->addWidget(lblShared);
  }
  all->addLayout(buttonRow({cmdExit}));
  fitScreen();
}

// The sale screen's keys on the left, all others on the right.
QWidget* frmHelp::table(const std::vector<KeyGroup>& groups) {
  auto* table = new QWidget;
  table->setObjectName("keyTable");
  auto* sides = new QHBoxLayout(table);
  sides->setContentsMargins(0, 0, 0, 0);
  sides->setSpacing(32);
  auto* left = new QGridLayout;
  auto* right = new QGridLayout;
  for (const KeyGroup& group : groups) addGroup(&group == &groups.front() ? *left : *right, group);
  for (QGridLayout* side : {left, right}) {
    side->setHorizontalSpacing(12);
    side->setVerticalSpacing(3);
    side->setColumnStretch(1, 1);
    side->setRowStretch(side->rowCount(), 1);
    sides->addLayout(side, 1);
  }
  return table;
}

void frmHelp::fitScreen() {
  ensurePolished();
  area_->widget()->ensurePolished();
  const QSize room = screen()->availableSize() - QSize(kScreenMargin, kScreenMargin);
  area_->setMinimumWidth(area_->widget()->sizeHint().width() +
                         area_->verticalScrollBar()->sizeHint().width());
  const int rest = sizeHint().height() - area_->sizeHint().height();
  resize(QSize(sizeHint().width(), rest + area_->widget()->sizeHint().height()).boundedTo(room));
}

bool frmHelp::handleKey(const QObject* watched, const QKeyEvent& event) {
  const int key = virtualKey(event);
  QScrollBar* bar = area_->verticalScrollBar();
  if (key != 0 && (key == keys().mUp || key == keys().mDown)) {
    bar->setValue(bar->value() + (key == keys().mUp ? -kStep : kStep));
    return true;
  }
  return KeyDrivenDialog::handleKey(watched, event);
}
