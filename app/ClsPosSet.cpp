#include "app/ClsPosSet.h"

#include <array>
#include <variant>
#include <vector>

#include "app/SettingNumber.h"
#include "platform/IniFile.h"

namespace {

using Text = std::string ClsPosSet::*;
using Number = int ClsPosSet::*;

struct Setting {
  const char* section;
  const char* key;
  std::variant<Text, Number> field;
};

constexpr const char* kPos = "POS";
constexpr const char* kColor = "Color";

const std::array<Setting, 14>& settings() {
  static const std::array<Setting, 14> all = {{
      {kPos, "PPort", &ClsPosSet::PPort},
      {kPos, "PModel", &ClsPosSet::PModel},
      {kPos, "printAmount", &ClsPosSet::printAmount},
      {kPos, "printOption", &ClsPosSet::printOption},
      {kPos, "MBPort", &ClsPosSet::MBPort},
      {kPos, "CVProt", &ClsPosSet::CVProt},
      {kPos, "CVModel", &ClsPosSet::CVModel},
      {kPos, "VMouse", &ClsPosSet::VMouse},
      {kColor, "C1", &ClsPosSet::C1},
      {kColor, "C2", &ClsPosSet::C2},
      {kColor, "C3", &ClsPosSet::C3},
      {kColor, "C4", &ClsPosSet::C4},
      {kColor, "C5", &ClsPosSet::C5},
      {kColor, "C6", &ClsPosSet::C6},
  }};
  return all;
}

}  // namespace

void ClsPosSet::LoadSet(const IniFile& file) {
  const ClsPosSet defaults;
  for (const Setting& setting : settings()) {
    const auto value = file.read(setting.section, setting.key);
    if (const Text* text = std::get_if<Text>(&setting.field)) {
      this->** text = value.value_or(std::string());
    } else {
      const Number number = std::get<Number>(setting.field);
      this->*number = settingNumber(value, defaults.*number);
    }
  }
}

void ClsPosSet::SaveSet(const IniFile& file) const {
  std::vector<IniFile::Entry> entries;
  for (const Setting& setting : settings()) {
    const Text* text = std::get_if<Text>(&setting.field);
    entries.push_back(
        {setting.section, setting.key,
         text ? this->**text : std::to_string(this->*std::get<Number>(setting.field))});
  }
  file.write(entries);
}
