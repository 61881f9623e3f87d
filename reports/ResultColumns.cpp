#include "reports/ResultColumns.h"

#include <QtGlobal>

const std::array<ResultColumnDesign, kResultColumns>& resultColumns() {
  static constexpr std::array<ResultColumnDesign, kResultColumns> kColumns = {{
      {QT_TRANSLATE_NOOP("ResultModel", "日期"), 5186, false},
      {QT_TRANSLATE_NOOP("ResultModel", "单号"), 2540, true},
      {QT_TRANSLATE_NOOP("ResultModel", "编码"), 1482, false},
      {QT_TRANSLATE_NOOP("ResultModel", "商品名称"), 6068, false},
      {QT_TRANSLATE_NOOP("ResultModel", "单位"), 1305, false},
      {QT_TRANSLATE_NOOP("ResultModel", "数量"), 1834, true},
      {QT_TRANSLATE_NOOP("ResultModel", "零售价"), 1834, true},
      {QT_TRANSLATE_NOOP("ResultModel", "折扣"), 1481, true},
      {QT_TRANSLATE_NOOP("ResultModel", "金额小计"), 2363, true},
      {QT_TRANSLATE_NOOP("ResultModel", "成本单价"), 2363, false},
      {QT_TRANSLATE_NOOP("ResultModel", "成本金额"), 2363, false},
      {QT_TRANSLATE_NOOP("ResultModel", "销售毛利"), 2363, false},
      {QT_TRANSLATE_NOOP("ResultModel", "商品条码"), 4304, false},
      {QT_TRANSLATE_NOOP("ResultModel", "商品类别"), 2363, false},
  }};
  return kColumns;
}
