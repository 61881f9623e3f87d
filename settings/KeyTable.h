#pragma once

#include <QString>
#include <vector>

class KeyBoard;

/// Keys that belong together, for the reader: "前台销售", and what each key does there.
struct KeyGroup {
  struct Row {
    QString key;   ///< "F2", or "–" where none is mapped
    QString does;  ///< "刷会员卡"
  };
  QString title;
  std::vector<Row> rows;
};

/// What the keys do as they are mapped: on the sale screen, in the settlement dialog and in menus,
/// and the quick keys that ring something, if there are any.
std::vector<KeyGroup> keyTable(const KeyBoard& keys);
