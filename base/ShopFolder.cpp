#include "base/ShopFolder.h"

#include <fstream>

#include "base/Text.h"

std::filesystem::path shopFolder(const std::string& asked,
                                 const std::filesystem::path& programFolder) {
  if (!asked.empty()) return std::filesystem::absolute(asked);
  std::ifstream file(programFolder / "shop-folder");
  for (std::string line; std::getline(file, line);) {
    const std::string name = trimmed(line);
    if (!name.empty() && name.front() != '#') return programFolder / name;
  }
  return programFolder;
}
