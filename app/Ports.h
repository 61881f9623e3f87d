#pragma once

#include <memory>
#include <string>

#include "platform/ByteSink.h"
#include "platform/PagePrinter.h"

class IniFile;

/// What the port names of the settings stand for on this machine: section Ports of the settings
/// file, else the machine's usual device files. Makes the devices, so that nobody else knows device
/// paths.
class Ports {
 public:
  explicit Ports(const IniFile& file);
  virtual ~Ports() = default;

  /// The path behind "LPT1", "LPT2", "COM1" ... "COM9"; the name itself when it is none of these.
  std::string path(const std::string& name) const;

  /// A port file for a printer or a drawer; opened only when something is sent.
  virtual std::unique_ptr<ByteSink> portFile(const std::string& name) const;
  /// A serial line, opened now. Throws PortError.
  virtual std::unique_ptr<ByteSink> serialLine(const std::string& name) const;
  /// The page printer "USB" with that paper.
  virtual std::unique_ptr<PagePrinter> pagePrinter(PageRoll roll) const;

 private:
  const IniFile& file_;
};
