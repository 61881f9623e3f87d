#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/Ports.h"
#include "platform/PortError.h"

/// Ports as the settings file has them, but for the serial line and the page printer, which are
/// kept in memory.
class RecordingPorts : public Ports {
 public:
  using Ports::Ports;

  std::unique_ptr<ByteSink> serialLine(const std::string& name) const override {
    if (isReal) return Ports::serialLine(name);
    opened.push_back(name);
    if (broken) throw PortError("端口 " + name + " 打不开");
    return std::make_unique<Line>(*this);
  }

  std::unique_ptr<PagePrinter> pagePrinter(PageRoll roll) const override {
    if (isReal) return Ports::pagePrinter(roll);
    return std::make_unique<Pages>(*this, roll);
  }

  bool isReal = false;  ///< records nothing
  bool broken = false;  ///< the serial line and the page printer
  mutable std::vector<std::string> opened;
  mutable std::vector<PageDocument> pages;
  mutable std::vector<int> pageWidthsMm;
  mutable std::string shown;  ///< the bytes sent to the serial line

 private:
  struct Line : ByteSink {
    explicit Line(const RecordingPorts& owner) : ports(owner) {}
    void send(std::string_view bytes) override {
      if (ports.broken) throw PortError("串口断开");
      ports.shown += bytes;
    }
    const RecordingPorts& ports;
  };
  struct Pages : PagePrinter {
    Pages(const RecordingPorts& owner, PageRoll roll)
        : PagePrinter(roll), ports(owner), widthMm(roll.widthMm) {}
    void print(const PageDocument& page) override {
      if (ports.broken) throw PortError("打印机没有响应");
      ports.pages.push_back(page);
      ports.pageWidthsMm.push_back(widthMm);
    }
    const RecordingPorts& ports;
    int widthMm;
  };
};
