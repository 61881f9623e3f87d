#include "store/FragmentColumn.h"

#include <array>

#include "base/Text.h"

namespace {

constexpr std::array kColumns = {FragmentColumn{"tmda", "ggxh", "spbm"},
                                 FragmentColumn{"spda", "f_sphh", "f_spbm"},
                                 FragmentColumn{"spda", "f_Ggxh", "f_spbm"}};

}  // namespace

const FragmentColumn* fragmentColumn(std::string_view column) {
  for (const FragmentColumn& known : kColumns) {
    if (equalIgnoringCase(known.column, column)) return &known;
  }
  return nullptr;
}

bool hasFragmentIndex(std::string_view table) {
  for (const FragmentColumn& known : kColumns) {
    if (equalIgnoringCase(known.table, table)) return true;
  }
  return false;
}
