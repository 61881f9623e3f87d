#pragma once

#include <QCoreApplication>
#include <QString>
#include <array>
#include <map>
#include <vector>

#include "app/KeyBoard.h"

/// A function of the sale screen whose key can be chosen.
struct KeyFunction {
  Q_DECLARE_TR_FUNCTIONS(KeyFunction)

 public:
  const char* box;     ///< name of its box in the keyboard dialog
  const char* named;   ///< "会员卡"
  const char* access;  ///< its access key there: "&2"
  int KeyBoard::*field;
  const char* effect;  ///< what it does on the sale screen: "取单"
  int row;             ///< its place in the dialog's grid, from 0
  int column;

  QString label() const;  ///< the caption of its box: "会员卡(&2)："
  QString name() const;   ///< for texts: "会员卡"
  QString onSaleScreen() const;
};

/// The fifteen functions, in the order in which they are shown and stored.
const std::array<KeyFunction, 15>& keyFunctions();

/// What a mapped key does on the sale screen, its own choice of key or not.
struct KeyUse {
  int KeyBoard::*field;
  QString name;    ///< "会员卡"
  QString effect;  ///< "刷会员卡"
};
/// All of them: the fifteen functions, then those whose key cannot be chosen. mF7 has none.
std::vector<KeyUse> keyUses();

/// Which functions share a key: by key code, the names of its functions, only where there are two
/// or more. 0 is no key and is never shared.
std::map<int, std::vector<QString>> sharedKeys(const KeyBoard& keys);
/// The same for the reader: "一键多用　F1 (112)：结账、会员卡"; empty when no key is shared.
QString sharedKeysText(const KeyBoard& keys);
/// Every key that does something on the sale screen.
std::vector<int> functionKeys(const KeyBoard& keys);
