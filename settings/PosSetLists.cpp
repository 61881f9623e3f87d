#include "settings/PosSetLists.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QStringList>
#include <algorithm>

#include "app/Ports.h"
#include "platform/QtText.h"
#include "settings/DeviceTest.h"
#include "shell/Modal.h"

using Text = std::string ClsPosSet::*;
using Number = int ClsPosSet::*;

namespace {

/// Stored as an empty text.
constexpr const char* kNone = QT_TRANSLATE_NOOP("PosSetLists", "无");

void showText(QComboBox& list, const std::string& setting) {
  const QString text = qtText(setting);
  if (!text.isEmpty() && list.findData(text) < 0) list.addItem(text, text);
  list.setCurrentIndex(text.isEmpty() ? 0 : list.findData(text));
}

/// What an entry is stored as.
std::string storedText(const QString& entry) {
  return entry == kNone ? std::string() : entry.toStdString();
}

}  // namespace

int PosSetLists::Choice::entryOf(const ClsPosSet& settings) const {
  if (const Number* number = std::get_if<Number>(&setting)) {
    const int position = settings.**number - firstPosition;
    return position < static_cast<int>(entries.size()) ? position : -1;
  }
  const auto found = std::ranges::find_if(entries, [&](const char* entry) {
    return storedText(entry) == settings.*std::get<Text>(setting);
  });
  return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

void PosSetLists::Choice::choose(ClsPosSet& settings, int entry) const {
  if (const Number* number = std::get_if<Number>(&setting)) {
    settings.** number = entry + firstPosition;
  } else {
    settings.*std::get<Text>(setting) = storedText(entries[static_cast<std::size_t>(entry)]);
  }
}

const std::vector<PosSetLists::Choice>& PosSetLists::choices() {
  static const std::vector<Choice> all = {
      {QT_TR_NOOP("小票打印机所在端口："),
       "cobPPort",
       {kNone, "LPT1", "LPT2", "USB"},
       QT_TR_NOOP("“无”表示不印小票"),
       &ClsPosSet::PPort},
      {QT_TR_NOOP("小票打印机类型："),
       "cobPModel",
       {QT_TR_NOOP("宽行"), QT_TR_NOOP("窄行")},
       "",
       &ClsPosSet::PModel,
       1},
      {QT_TR_NOOP("小票打印动作："),
       "printAmount",
       {QT_TR_NOOP("不打印"), QT_TR_NOOP("直接打印1联"), QT_TR_NOOP("直接打印2联"),
        QT_TR_NOOP("直接打印3联"), QT_TR_NOOP("打印前提示默认'是'"),
        QT_TR_NOOP("打印前提示默认'否'")},
       "",
       &ClsPosSet::printAmount},
      {QT_TR_NOOP("小票打印选项："),
       "printOption",
       {QT_TR_NOOP("打印商品前7个字简称"), QT_TR_NOOP("打印编码+商品全称"),
        QT_TR_NOOP("打印商品全称"), QT_TR_NOOP("打印商品全称+折扣")},
       "",
       &ClsPosSet::printOption},
      {QT_TR_NOOP("钱箱所在端口："),
       "cobMBPort",
       {kNone, "LPT1", "LPT2", "COM1", "COM2"},
       QT_TR_NOOP("“无”表示不使用钱箱"),
       &ClsPosSet::MBPort},
      {QT_TR_NOOP("客显所在端口："),
       "cobCVPort",
       {kNone, "COM1", "COM2"},
       QT_TR_NOOP("“无”表示不使用客显"),
       &ClsPosSet::CVProt},
      {QT_TR_NOOP("客显型号："),
       "cobCVModel",
       {QT_TR_NOOP("中崎ZQ-8DL"), QT_TR_NOOP("川田PDLED8C")},
       "",
       &ClsPosSet::CVModel,
       1},
      {QT_TR_NOOP("是否启用鼠标："),
       "cobVMouse",
       {QT_TR_NOOP("否"), QT_TR_NOOP("是")},
       "",
       &ClsPosSet::VMouse},
  };
  return all;
}

PosSetLists::PosSetLists(const ClsPosSet& settings, QWidget* parent)
    : QWidget(parent), settings_(settings) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(10);
  for (const Choice& choice : choices()) addRow(*grid, choice);
}

void PosSetLists::addRow(QGridLayout& grid, const Choice& choice) {
  auto* list = new QComboBox;
  list->setObjectName(choice.list);
  for (const char* entry : choice.entries) list->addItem(tr(entry), entry);
  if (const Text* text = std::get_if<Text>(&choice.setting)) {
    showText(*list, settings_.**text);
  } else {
    list->setCurrentIndex(choice.entryOf(settings_));
  }
  const int row = static_cast<int>(lists_.size());
  grid.addWidget(new QLabel(tr(choice.caption)), row, 0, Qt::AlignRight | Qt::AlignVCenter);
  grid.addWidget(list, row, 1);
  grid.addWidget(new QLabel(tr(choice.hint)), row, 2);
  lists_.push_back(list);
}

ClsPosSet PosSetLists::chosen() const {
  ClsPosSet settings = settings_;
  for (std::size_t i = 0; i < lists_.size(); ++i) {
    const QComboBox& list = *lists_[i];
    const Choice& choice = choices()[i];
    if (const Text* text = std::get_if<Text>(&choice.setting)) {
      settings.** text = storedText(list.currentData().toString());
    } else if (list.currentIndex() >= 0) {
      choice.choose(settings, list.currentIndex());
    }
  }
  return settings;
}

void PosSetLists::test(const Ports& ports, const Clock& clock) {
  const ClsPosSet settings = chosen();
  DeviceTest devices(ports, settings, clock);
  QStringList lines;
  bool failed = false;
  for (const DeviceTest::Result& result : devices.run()) {
    lines += tr("%1：%2").arg(result.device, result.text);
    failed = failed || result.failed;
  }
  messageBox(this, lines.join("\n"), tr("测试"),
             failed ? BoxIcon::kExclamation : BoxIcon::kInformation);
}
