#include "devices/DeviceBytes.h"

#include <algorithm>

#include "base/Gbk.h"
#include "base/NumberText.h"
#include "platform/PortError.h"
#include "platform/QtText.h"

namespace device {

std::string printedLines(std::vector<std::string> lines) {
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
  std::string bytes;
  for (std::string& line : lines) {
    std::replace_if(line.begin(), line.end(), isControl, ' ');
    bytes += gbk::encode(line) + "\r\n";
  }
  return bytes;
}

std::string displayFigure(Currency money, int mode) {
  std::string bytes;
  if (mode >= 0 && mode <= 4) bytes = {'\x1B', 's', static_cast<char>('0' + mode)};
  return bytes + "\x1BQA" + twoDecimals(money) + "\r";
}

std::string displayPort(const std::string& setting) {
  if (setting == "COM1" || setting == "COM2") return setting;
  const auto number = parseWhole32(setting);
  if (!number) {
    throw PortError(PortError::tr("客户显示屏的端口“%1”不是有效的端口号").arg(qtText(setting)));
  }
  return "COM" + std::to_string(*number);
}

}  // namespace device
