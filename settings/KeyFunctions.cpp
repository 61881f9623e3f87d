#include "settings/KeyFunctions.h"

#include <QCoreApplication>
#include <utility>

namespace {

QString translated(const char* text) {
  return QCoreApplication::translate("KeyFunctions", text);
}

/// All functions with their keys, those too that cannot be chosen. mF7 does nothing.
std::vector<std::pair<int, QString>> uses(const KeyBoard& keys) {
  std::vector<std::pair<int, QString>> all;
  for (const KeyFunction& function : keyFunctions())
    all.emplace_back(keys.*function.field, translated(function.name));
  all.emplace_back(keys.mF3, translated("增加会员"));
  all.emplace_back(keys.mF8, translated("销售查询"));
  return all;
}

}  // namespace

const std::array<KeyFunction, 15>& keyFunctions() {
  static const std::array<KeyFunction, 15> all = {{
      {"txtEnter", "确定(&Y)：", "确定", &KeyBoard::mEnter, 0, 0},
      {"txtEsc", "取消(&C)：", "取消", &KeyBoard::mEsc, 0, 1},
      {"txtF1", "结账(&1)：", "结账", &KeyBoard::mF1, 1, 0},
      {"txtF2", "会员卡(&2)：", "会员卡", &KeyBoard::mF2, 1, 1},
      {"txtF4", "删除(&3)：", "删除", &KeyBoard::mF4, 1, 2},
      {"txtF5", "挂起(&4)：", "挂起", &KeyBoard::mF5, 2, 0},
      {"txtF6", "增加新会员(&5)：", "增加新会员", &KeyBoard::mF6, 2, 1},
      {"txtF9", "功能(&6)：", "功能", &KeyBoard::mF9, 2, 2},
      {"txtF10", "开箱(&7)：", "开箱", &KeyBoard::mF10, 3, 0},
      {"txtF11", "查找商品(&8)：", "查找商品", &KeyBoard::mF11, 3, 1},
      {"txtF12", "撤消(&9)：", "撤消", &KeyBoard::mF12, 3, 2},
      {"txtUp", "向上(U)：", "向上", &KeyBoard::mUp, 4, 0},
      {"txtDown", "向下(&D)：", "向下", &KeyBoard::mDown, 4, 1},
      {"txtLeft", "向左(&L)：", "向左", &KeyBoard::mLeft, 4, 2},
      {"txtRight", "向右(&R)：", "向右", &KeyBoard::mRight, 5, 0},
  }};
  return all;
}

std::map<int, std::vector<QString>> sharedKeys(const KeyBoard& keys) {
  std::map<int, std::vector<QString>> byKey;
  for (const auto& [code, name] : uses(keys))
    if (code != 0) byKey[code].push_back(name);
  std::erase_if(byKey, [](const auto& entry) { return entry.second.size() < 2; });
  return byKey;
}

std::vector<int> functionKeys(const KeyBoard& keys) {
  std::vector<int> codes;
  for (const auto& [code, name] : uses(keys)) codes.push_back(code);
  return codes;
}
