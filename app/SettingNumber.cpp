#include "app/SettingNumber.h"

#include "base/NumberText.h"

int settingNumber(const std::optional<std::string>& value, int defaultNumber) {
  if (!value) return defaultNumber;
  if (value->empty()) return 0;
  return parseWhole32(*value).value_or(defaultNumber);
}
