#include "settings/KeyFunctions.h"

#include <QStringList>

#include "platform/KeyName.h"

QString KeyFunction::label() const {
  return tr("%1(%2)：", "caption of a key's box: its name and its access key").arg(name(), access);
}

QString KeyFunction::name() const {
  return tr(named);
}

QString KeyFunction::onSaleScreen() const {
  return tr(effect);
}

const std::array<KeyFunction, 15>& keyFunctions() {
  static const std::array<KeyFunction, 15> all = {{
      {"txtEnter", QT_TRANSLATE_NOOP("KeyFunction", "确定"), "&Y", &KeyBoard::mEnter,
       QT_TRANSLATE_NOOP("KeyFunction", "录入、空行结账"), 0, 0},
      {"txtEsc", QT_TRANSLATE_NOOP("KeyFunction", "取消"), "&C", &KeyBoard::mEsc,
       QT_TRANSLATE_NOOP("KeyFunction", "退出销售"), 0, 1},
      {"txtF1", QT_TRANSLATE_NOOP("KeyFunction", "结账"), "&1", &KeyBoard::mF1,
       QT_TRANSLATE_NOOP("KeyFunction", "结账"), 1, 0},
      {"txtF2", QT_TRANSLATE_NOOP("KeyFunction", "会员卡"), "&2", &KeyBoard::mF2,
       QT_TRANSLATE_NOOP("KeyFunction", "刷会员卡"), 1, 1},
      {"txtF4", QT_TRANSLATE_NOOP("KeyFunction", "删除"), "&3", &KeyBoard::mF4,
       QT_TRANSLATE_NOOP("KeyFunction", "删除最后一行"), 1, 2},
      {"txtF5", QT_TRANSLATE_NOOP("KeyFunction", "挂起"), "&4", &KeyBoard::mF5,
       QT_TRANSLATE_NOOP("KeyFunction", "挂单"), 2, 0},
      {"txtF6", QT_TRANSLATE_NOOP("KeyFunction", "增加新会员"), "&5", &KeyBoard::mF6,
       QT_TRANSLATE_NOOP("KeyFunction", "取单"), 2, 1},
      {"txtF9", QT_TRANSLATE_NOOP("KeyFunction", "功能"), "&6", &KeyBoard::mF9,
       QT_TRANSLATE_NOOP("KeyFunction", "会员充值"), 2, 2},
      {"txtF10", QT_TRANSLATE_NOOP("KeyFunction", "开箱"), "&7", &KeyBoard::mF10,
       QT_TRANSLATE_NOOP("KeyFunction", "开钱箱"), 3, 0},
      {"txtF11", QT_TRANSLATE_NOOP("KeyFunction", "查找商品"), "&8", &KeyBoard::mF11,
       QT_TRANSLATE_NOOP("KeyFunction", "销售查询"), 3, 1},
      {"txtF12", QT_TRANSLATE_NOOP("KeyFunction", "撤消"), "&9", &KeyBoard::mF12,
       QT_TRANSLATE_NOOP("KeyFunction", "整单撤消"), 3, 2},
      {"txtUp", QT_TRANSLATE_NOOP("KeyFunction", "向上"), "U", &KeyBoard::mUp,
       QT_TRANSLATE_NOOP("KeyFunction", "改最后一行"), 4, 0},
      {"txtDown", QT_TRANSLATE_NOOP("KeyFunction", "向下"), "&D", &KeyBoard::mDown,
       QT_TRANSLATE_NOOP("KeyFunction", "回到录入"), 4, 1},
      {"txtLeft", QT_TRANSLATE_NOOP("KeyFunction", "向左"), "&L", &KeyBoard::mLeft,
       QT_TRANSLATE_NOOP("KeyFunction", "左移一栏"), 4, 2},
      {"txtRight", QT_TRANSLATE_NOOP("KeyFunction", "向右"), "&R", &KeyBoard::mRight,
       QT_TRANSLATE_NOOP("KeyFunction", "右移一栏"), 5, 0},
  }};
  return all;
}

std::vector<KeyUse> keyUses() {
  std::vector<KeyUse> all;
  for (const KeyFunction& function : keyFunctions())
    all.push_back({function.field, function.name(), function.onSaleScreen()});
  const QString member = KeyFunction::tr("增加会员"), query = KeyFunction::tr("销售查询");
  all.push_back({&KeyBoard::mF3, member, member});
  all.push_back({&KeyBoard::mF8, query, query});
  return all;
}

std::map<int, std::vector<QString>> sharedKeys(const KeyBoard& keys) {
  std::map<int, std::vector<QString>> byKey;
  for (const KeyUse& use : keyUses())
    if (keys.*use.field != 0) byKey[keys.*use.field].push_back(use.name);
  std::erase_if(byKey, [](const auto& entry) { return entry.second.size() < 2; });
  return byKey;
}

QString sharedKeysText(const KeyBoard& keys) {
  QStringList texts;
  for (const auto& [code, names] : sharedKeys(keys))
    texts += KeyFunction::tr("%1：%2", "a key: its functions")
                 .arg(keyText(code),
                      QStringList(names.begin(), names.end()).join(KeyFunction::tr("、")));
  if (texts.isEmpty()) return {};
  return KeyFunction::tr("一键多用　%1").arg(texts.join(KeyFunction::tr("；")));
}

std::vector<int> functionKeys(const KeyBoard& keys) {
  std::vector<int> codes;
  for (const KeyUse& use : keyUses()) codes.push_back(keys.*use.field);
  return codes;
}
