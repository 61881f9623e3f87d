#pragma once

#include <fstream>
#include <sstream>
#include <string>

#include "TemporaryFolder.h"
#include "app/posMod.h"

/// A till of which only the settings matter: its file has the given lines, and no data file is
/// open.
class SettingsTill {
 public:
  explicit SettingsTill(const std::string& lines = {}) {
    std::ofstream(folder.file("Config.ini"), std::ios::binary) << lines;
    pos.gKeyBoard.LoadSet(pos.configIni);
    pos.gPosSet.LoadSet(pos.configIni);
  }
  std::string fileText() const { return content("Config.ini"); }
  std::string content(const std::string& name) const {
    std::ostringstream text;
    text << std::ifstream(folder.file(name), std::ios::binary).rdbuf();
    return text.str();
  }
  std::string stored(const char* section, const char* key) const {
    return pos.configIni.read(section, key).value_or("absent");
  }

  TemporaryFolder folder;
  posMod pos{folder.path()};
};
