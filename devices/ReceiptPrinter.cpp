#include "devices/ReceiptPrinter.h"

#include "app/ClsPosSet.h"
#include "app/Ports.h"
#include "devices/DeviceBytes.h"

namespace {

class NoPrinter : public ReceiptPrinter {
 public:
  explicit NoPrinter(const Paper& paper) : ReceiptPrinter(paper) {}
  Kind kind() const override { return Kind::kNone; }
};

class LinePrinter : public ReceiptPrinter {
 public:
  LinePrinter(const ClsPosSet& settings, const Ports& ports)
      : ReceiptPrinter(Paper::ofModel(settings.PModel)), ports_(ports), port_(settings.PPort) {}

  Kind kind() const override { return Kind::kLine; }
  void printLines(const std::vector<std::string>& lines) override {
    ports_.portFile(port_)->send(device::printedLines(lines));
  }
  void print(const LineDocument& sheet) override {
    if (port_ == "LPT1" || port_ == "LPT2") printLines(sheet.lines);
  }
  void print(const PageDocument&) override {}

 private:
  const Ports& ports_;
  std::string port_;
};

class SystemPrinter : public ReceiptPrinter {
 public:
  SystemPrinter(const ClsPosSet& settings, const Ports& ports)
      : ReceiptPrinter(Paper::ofModel(settings.PModel)),
        printer_(ports.pagePrinter({paper().widthMm, paper().line})),
        mode_(PrintMode::of(settings.printAmount)) {}

  Kind kind() const override { return Kind::kPage; }
  PrintMode mode() const override { return mode_; }
  void print(const LineDocument& sheet) override {
    PageDocument page;
    page.name = sheet.name;
    page.addLines(0, sheet.lines);
    print(page);
  }
  void print(const PageDocument& page) override { printer_->print(page); }

 private:
  std::unique_ptr<PagePrinter> printer_;
  PrintMode mode_;
};

}  // namespace

std::unique_ptr<ReceiptPrinter> ReceiptPrinter::ofSettings(const ClsPosSet& settings,
                                                           const Ports& ports) {
  if (settings.PPort.empty()) return std::make_unique<NoPrinter>(Paper::ofModel(settings.PModel));
  if (settings.PPort == "USB") return ofSystem(settings, ports);
  return std::make_unique<LinePrinter>(settings, ports);
}

std::unique_ptr<ReceiptPrinter> ReceiptPrinter::ofSystem(const ClsPosSet& settings,
                                                         const Ports& ports) {
  return std::make_unique<SystemPrinter>(settings, ports);
}

void ReceiptPrinter::printLines(const std::vector<std::string>&) {}
void ReceiptPrinter::print(const LineDocument&) {}
void ReceiptPrinter::print(const PageDocument&) {}
