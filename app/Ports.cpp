#include "app/Ports.h"

#include <filesystem>
#include <optional>

#include "base/Text.h"
#include "platform/IniFile.h"
#include "platform/PortFile.h"
#include "platform/SerialLine.h"

namespace {

constexpr const char* kSection = "Ports";

/// The number at the end of "LPT1" or "COM9"; nothing for any other name.
std::optional<int> numberOf(std::string_view name, std::string_view prefix, char last) {
  if (name.size() != prefix.size() + 1) return std::nullopt;
  if (!equalIgnoringCase(name.substr(0, prefix.size()), prefix)) return std::nullopt;
  if (name.back() < '1' || name.back() > last) return std::nullopt;
  return name.back() - '0';
}

/// Printers on USB have a device file of their own kind; the parallel ports have the older one.
std::string printerDevice(int number) {
  const std::string ending = "lp" + std::to_string(number - 1);
  std::error_code ignored;
  const std::string usb = "/dev/usb/" + ending;
  return std::filesystem::exists(usb, ignored) ? usb : "/dev/" + ending;
}

}  // namespace

Ports::Ports(const IniFile& file) : file_(file) {}

std::string Ports::path(const std::string& name) const {
  const auto printer = numberOf(name, "LPT", '2');
  const auto serial = numberOf(name, "COM", '9');
  if (!printer && !serial) return name;
  const auto configured = file_.read(kSection, name);
  if (configured && !configured->empty()) return *configured;
  return printer ? printerDevice(*printer) : "/dev/ttyS" + std::to_string(*serial - 1);
}

std::unique_ptr<ByteSink> Ports::portFile(const std::string& name) const {
  return std::make_unique<PortFile>(name, path(name));
}

std::unique_ptr<ByteSink> Ports::serialLine(const std::string& name) const {
  return std::make_unique<SerialLine>(name, path(name));
}

std::unique_ptr<PagePrinter> Ports::pagePrinter(PageRoll roll) const {
  return std::make_unique<PagePrinter>(roll, file_.read(kSection, "USB").value_or(std::string()));
}
