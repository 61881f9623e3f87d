#pragma once

#include <memory>
#include <string>
#include <vector>

#include "devices/Paper.h"
#include "devices/PrintMode.h"
#include "platform/PageDocument.h"

class ClsPosSet;
class Ports;

/// Lines one below the other, for either kind of printer.
struct LineDocument {
  std::string name;  ///< of the job, where the printer has jobs
  std::vector<std::string> lines;
};

/// What prints this till's receipts: no printer, a line printer on a port, or the system's page
/// printer. Each document is printed where it can be and else ignored, so that nobody has to ask
/// which printer there is. Printing throws PortError and waits two seconds at most for a port.
class ReceiptPrinter {
 public:
  enum class Kind { kNone, kLine, kPage };

  /// The printer of the settings.
  static std::unique_ptr<ReceiptPrinter> ofSettings(const ClsPosSet& settings, const Ports& ports);
  /// The system's page printer with the settings' paper, whatever prints the receipts.
  static std::unique_ptr<ReceiptPrinter> ofSystem(const ClsPosSet& settings, const Ports& ports);

  virtual ~ReceiptPrinter() = default;

  virtual Kind kind() const = 0;
  /// How many receipts it gives after a sale; none where they are printed while the sale goes on.
  virtual PrintMode mode() const { return {}; }
  const Paper& paper() const { return paper_; }

  /// Lines of a receipt while the sale goes on: on a line printer only.
  virtual void printLines(const std::vector<std::string>& lines);
  /// A whole sheet: on the page printer, or on a line printer at a port that the settings dialog
  /// offers. A port that somebody wrote into the settings file by hand gets the receipts only.
  virtual void print(const LineDocument& sheet);
  /// On the page printer only.
  virtual void print(const PageDocument& page);

 protected:
  explicit ReceiptPrinter(const Paper& paper) : paper_(paper) {}

 private:
  Paper paper_;
};
