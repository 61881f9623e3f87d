#include "InstalledTill.h"

#include "base/DateTime.h"
#include "base/Failure.h"
#include "platform/IniFile.h"
#include "saleslib/ClsSysParam.h"
#include "shop/DemoShop.h"
#include "store/Connection.h"
#include "store/DataFile.h"

namespace fs = std::filesystem;

InstalledTill::InstalledTill() {
  fs::create_directories(program() / "data");
  for (const char* file : {"till", "libTessaly.so.1"}) {
    fs::copy(fs::path(TILL_PROGRAM_FOLDER) / file, program() / file);
  }
  const std::unique_ptr<Connection> shop = createDataFile({dataFile(), kBuiltInPassword});
  fillDemoShop(*shop, localTime);
  ClsSysParam parameters;
  parameters.Conn(*shop);
  ensure(parameters.set("Shifts", "0").empty(), "a shop may sell without shifts");
  writeSettings({});
}

void InstalledTill::writeSettings(const std::string& display) {
  fs::remove(program() / "Config.ini");
  fs::create_directories(folder() / "printed");
  const IniFile settings(program() / "Config.ini");
  for (const char* port :
       {"LPT1", "LPT2", "COM1", "COM2", "COM3", "COM4", "COM5", "COM6", "COM7", "COM8", "COM9"}) {
    settings.write("Ports", port, (folder() / port).string());
  }
  if (!display.empty()) settings.write("Ports", "COM1", display);
  settings.write("Ports", "USB", (folder() / "printed").string());
  settings.write("POS", "PPort", "LPT1");
  settings.write("POS", "printAmount", "直接打印1联");
  settings.write("POS", "MBPort", "LPT2");
  settings.write("POS", "CVProt", display.empty() ? "" : "COM1");
  settings.write("POS", "CVModel", "1");
}

std::uintmax_t InstalledTill::drawerBytes() const {
  std::error_code none;
  const std::uintmax_t size = fs::file_size(drawer(), none);
  return none ? 0 : size;
}

std::unique_ptr<Connection> InstalledTill::open() const {
  return openDataFile({dataFile(), kBuiltInPassword});
}
