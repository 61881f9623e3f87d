#include "settings/KeyTable.h"

#include <QCoreApplication>
#include <algorithm>
#include <utility>

#include "app/KeyBoard.h"
#include "platform/KeyName.h"
#include "platform/QtText.h"
#include "platform/VirtualKey.h"
#include "settings/KeyFunctions.h"

namespace {

class Texts {
  Q_DECLARE_TR_FUNCTIONS(KeyTable)
};

QString named(int code) {
  if (code == 0) return Texts::tr("–", "no key");
  const QString name = keyName(code);
  return name.isEmpty() ? QString::number(code) : name;
}

QString either(int first, int second) {
  return first == second ? named(first) : Texts::tr("%1 或 %2").arg(named(first), named(second));
}

/// In the order of the keyboard map, which is that of a keyboard.
KeyGroup onSaleScreen(const KeyBoard& keys) {
  KeyGroup group{Texts::tr("前台销售"), {}};
  const std::vector<KeyUse> uses = keyUses();
  for (const KeyBoard::Key& key : KeyBoard::keys()) {
    const auto use = std::ranges::find(uses, key.field, &KeyUse::field);
    if (use != uses.end()) group.rows.push_back({named(keys.*key.field), use->effect});
  }
  return group;
}

KeyGroup atSettlement(const KeyBoard& keys) {
  return {Texts::tr("结账时"),
          {{either(keys.mEnter, keys.mF1), Texts::tr("在现金栏：收款，打小票")},
           {named(keys.mEsc), Texts::tr("在现金栏：不收款，返回单据")},
           {named(vk::kTab), Texts::tr("转到下一栏")}}};
}

KeyGroup inMenus(const KeyBoard& keys) {
  return {Texts::tr("菜单"),
          {{either(keys.mUp, keys.mDown), Texts::tr("上下选择")},
           {named(keys.mEnter), Texts::tr("执行")},
           {named(keys.mEsc), Texts::tr("返回")},
           {Texts::tr("%1、右键").arg(named(vk::kMenu)), Texts::tr("更多功能、功能菜单")},
           {named(vk::kF10), Texts::tr("主菜单的更多功能")}}};
}

/// A quick key that is a function's too, or a second time in the list, never rings anything.
KeyGroup quickKeys(const KeyBoard& keys) {
  KeyGroup group{Texts::tr("商品快捷键"), {}};
  std::vector<int> taken = functionKeys(keys);
  taken.push_back(0);
  for (const clsQk& quick : keys.QK) {
    if (quick.QK_Bm.empty() || std::ranges::find(taken, quick.QK_int) != taken.end()) continue;
    taken.push_back(quick.QK_int);
    group.rows.push_back({named(quick.QK_int), Texts::tr("录入商品 %1").arg(qtText(quick.QK_Bm))});
  }
  return group;
}

}  // namespace

std::vector<KeyGroup> keyTable(const KeyBoard& keys) {
  std::vector<KeyGroup> groups = {onSaleScreen(keys), atSettlement(keys), inMenus(keys)};
  if (KeyGroup quick = quickKeys(keys); !quick.rows.empty()) groups.push_back(std::move(quick));
  return groups;
}
