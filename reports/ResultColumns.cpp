#include "reports/ResultColumns.h"

const std::array<ResultColumnDesign, kResultColumns>& resultColumns() {
  static constexpr std::array<ResultColumnDesign, kResultColumns> kColumns = {{
      {"日期", 5186, false},
      {"单号", 2540, true},
      {"编码", 1482, false},
      {"商品名称", 6068, false},
      {"单位", 1305, false},
      {"数量", 1834, true},
      {"零售价", 1834, true},
      {"折扣", 1481, true},
      {"金额小计", 2363, true},
      {"成本单价", 2363, false},
      {"成本金额", 2363, false},
      {"销售毛利", 2363, false},
      {"商品条码", 4304, false},
      {"商品类别", 2363, false},
  }};
  return kColumns;
}
