#include <QCoreApplication>
#include <QString>

#include "app/KeyBoard.h"
#include "docs/ProgramFacts.h"
#include "settings/KeyTable.h"

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(KeyCard)
};

QString keyTable(const KeyGroup& group) {
  QString text = Texts::tr("| 按键 | %1 |").arg(group.title) + "\n|---|---|\n";
  for (const auto& [key, does] : group.rows) text += QString("| `%1` | %2 |\n").arg(key, does);
  return text + "\n";
}

/// The key for what the map of keys calls so in Chinese.
QString keyThatDoes(const char* effect) {
  const QString shown = QCoreApplication::translate("KeyFunction", effect);
  return QString::fromStdString(program_facts::keyFor(shown.toStdString()));
}

}  // namespace

std::string program_facts::keyTables() {
  QString text;
  for (const KeyGroup& group : ::keyTable(KeyBoard())) text += keyTable(group);
  return text.toStdString();
}

std::string program_facts::keyCard() {
  const QString enter = keyThatDoes(QT_TRANSLATE_NOOP("KeyFunction", "录入、空行结账"));
  const QString paragraphs[] = {
      Texts::tr("# 收银员按键卡 {.card}"),
      Texts::tr("一笔销售：扫描商品；都扫完了，在空行按 `%1`；输入收到的现金，再按 `%1`。")
          .arg(enter),
      Texts::tr("打错了：`%1` 删除最后一行，`%2` 撤消整单。")
          .arg(keyThatDoes(QT_TRANSLATE_NOOP("KeyFunction", "删除最后一行")),
               keyThatDoes(QT_TRANSLATE_NOOP("KeyFunction", "整单撤消"))),
      "::: columns",
      QString::fromStdString(keyTables()).trimmed(),
      ":::",
      Texts::tr("店里改过按键的，以程序里的“帮助”为准：它在主菜单的更多功能和销售界面的功能菜单里，"
                "总是最后一项。")};
  QString text;
  for (const QString& paragraph : paragraphs)
    text += (text.isEmpty() ? "" : "\n") + paragraph + "\n";
  return text.toStdString();
}
