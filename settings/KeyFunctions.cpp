#include "settings/KeyFunctions.h"

#include <QCoreApplication>
#include <utility>

namespace {

QString translated(const char* text) {
  return QCoreApplication::translate("KeyFunction", text);
}

/// All functions with their keys, those too that cannot be chosen. mF7 does nothing.
std::vector<std::pair<int, QString>> uses(const KeyBoard& keys) {
  std::vector<std::pair<int, QString>> all;
  for (const KeyFunction& function : keyFunctions())
    all.emplace_back(keys.*function.field, function.name());
  all.emplace_back(keys.mF3, translated("增加会员"));
  all.emplace_back(keys.mF8, translated("销售查询"));
  return all;
}

}  // namespace

QString KeyFunction::label() const {
  return translated(caption);
}

QString KeyFunction::onSaleScreen() const {
  return translated(effect);
}

QString KeyFunction::name() const {
  return label().section('(', 0, 0);
}

const std::array<KeyFunction, 15>& keyFunctions() {
  static const std::array<KeyFunction, 15> all = {{
      {"txtEnter", "确定(&Y)：", &KeyBoard::mEnter, "录入、空行结账", 0, 0},
      {"txtEsc", "取消(&C)：", &KeyBoard::mEsc, "退出销售", 0, 1},
      {"txtF1", "结账(&1)：", &KeyBoard::mF1, "结账", 1, 0},
      {"txtF2", "会员卡(&2)：", &KeyBoard::mF2, "刷会员卡", 1, 1},
      {"txtF4", "删除(&3)：", &KeyBoard::mF4, "删除最后一行", 1, 2},
      {"txtF5", "挂起(&4)：", &KeyBoard::mF5, "挂单", 2, 0},
      {"txtF6", "增加新会员(&5)：", &KeyBoard::mF6, "取单", 2, 1},
      {"txtF9", "功能(&6)：", &KeyBoard::mF9, "会员充值", 2, 2},
      {"txtF10", "开箱(&7)：", &KeyBoard::mF10, "开钱箱", 3, 0},
      {"txtF11", "查找商品(&8)：", &KeyBoard::mF11, "销售查询", 3, 1},
      {"txtF12", "撤消(&9)：", &KeyBoard::mF12, "整单撤消", 3, 2},
      {"txtUp", "向上(U)：", &KeyBoard::mUp, "改最后一行", 4, 0},
      {"txtDown", "向下(&D)：", &KeyBoard::mDown, "回到录入", 4, 1},
      {"txtLeft", "向左(&L)：", &KeyBoard::mLeft, "左移一栏", 4, 2},
      {"txtRight", "向右(&R)：", &KeyBoard::mRight, "右移一栏", 5, 0},
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
