#pragma once

#include <filesystem>

#include "base/DateTime.h"
#include "platform/PageDocument.h"

/// The paper: its width, and how many columns a full line has on it.
struct PageRoll {
  int widthMm = 0;
  int columns = 0;
};

class QPainter;

/// Draws a document as it is printed on that roll, without page breaks; the painter's unit is the
/// twip, its origin the paper's top left corner.
void paintOnRoll(QPainter& painter, const PageDocument& document, PageRoll roll);

/// The system's default printer, or a folder that gets one PDF per job.
class PagePrinter {
 public:
  /// An empty folder means the system's default printer. The clock dates
  /// the PDFs' file names.
  explicit PagePrinter(PageRoll roll, std::filesystem::path pdfFolder = {},
                       Clock clock = localTime);
  virtual ~PagePrinter() = default;

  /// Prints the job on paper as long as needed, in pages of five metres when it is longer: at most
  /// fontPoints large, and so that a full line of the roll fits. A text that
  /// would reach the next one at its height, or leave the paper, is set narrower; control
  /// characters are left out. The PDFs' file names sort in print order. Throws PortError when there
  /// is no printer, or the folder or the job fails.
  virtual void print(const PageDocument& document);

 private:
  PageRoll roll_;
  std::filesystem::path pdfFolder_;
  Clock clock_;
};
