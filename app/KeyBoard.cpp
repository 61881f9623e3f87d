#include "app/KeyBoard.h"

#include <cstddef>
#include <optional>
#include <vector>

#include "app/SettingNumber.h"
#include "base/NumberText.h"
#include "platform/IniFile.h"
#include "platform/VirtualKey.h"

namespace {

constexpr const char* kKeySection = "KeyBoard";
constexpr const char* kQuickKeySection = "QK";

std::string quickKeyName(std::size_t position) {
  return std::to_string(position) + "QK";
}

std::optional<clsQk> quickKeyFrom(const std::string& value) {
  const std::size_t separator = value.find(';');
  if (separator == std::string::npos) return std::nullopt;
  const auto code = parseWhole16(value.substr(0, separator));
  if (!code) return std::nullopt;
  return clsQk{*code, value.substr(separator + 1)};
}

/// The list in the file ends at the first position that is absent or empty.
std::optional<std::string> quickKeyText(const IniFile& file, std::size_t position) {
  auto value = file.read(kQuickKeySection, quickKeyName(position));
  if (value && value->empty()) return std::nullopt;
  return value;
}

}  // namespace

const std::array<KeyBoard::Key, 18>& KeyBoard::keys() {
  static const std::array<Key, 18> all = {{
      {"Esc", &KeyBoard::mEsc},
      {"Enter", &KeyBoard::mEnter},
      {"F1", &KeyBoard::mF1},
      {"F2", &KeyBoard::mF2},
      {"F3", &KeyBoard::mF3},
      {"F4", &KeyBoard::mF4},
      {"F5", &KeyBoard::mF5},
      {"F6", &KeyBoard::mF6},
      {"F7", &KeyBoard::mF7},
      {"F8", &KeyBoard::mF8},
      {"F9", &KeyBoard::mF9},
      {"F10", &KeyBoard::mF10},
      {"F11", &KeyBoard::mF11},
      {"F12", &KeyBoard::mF12},
      {"Left", &KeyBoard::mLeft},
      {"Right", &KeyBoard::mRight},
      {"Up", &KeyBoard::mUp},
      {"Down", &KeyBoard::mDown},
  }};
  return all;
}

int KeyBoard::meaning(int code) const {
  return code == vk::kEnter ? mEnter : code;
}

void KeyBoard::LoadSet(const IniFile& file) {
  const KeyBoard defaults;
  for (const Key& key : keys())
    this->*key.field = settingNumber(file.read(kKeySection, key.name), defaults.*key.field);
  for (std::size_t position = 0; const auto value = quickKeyText(file, position); ++position) {
    if (auto quickKey = quickKeyFrom(*value)) QK.push_back(std::move(*quickKey));
  }
}

void KeyBoard::ReSetQk() {
  QK.clear();
}

void KeyBoard::SaveSet(const IniFile& file) const {
  std::vector<IniFile::Entry> entries;
  for (const Key& key : keys())
    entries.push_back({kKeySection, key.name, std::to_string(this->*key.field)});
  for (std::size_t position = 0; quickKeyText(file, position); ++position)
    entries.push_back({kQuickKeySection, quickKeyName(position), ""});
  for (std::size_t position = 0; position < QK.size(); ++position) {
    const clsQk& quickKey = QK[position];
    entries.push_back({kQuickKeySection, quickKeyName(position),
                       std::to_string(quickKey.QK_int) + ";" + quickKey.QK_Bm});
  }
  file.write(entries);
}
