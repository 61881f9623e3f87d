#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "base/DateTime.h"

/// A line of text at its place on the paper, in twips (1440 to the inch) from the top left corner.
struct PlacedText {
  int x = 0;
  int y = 0;
  std::string text;  ///< UTF-8
};

/// One print job: texts in print order, those at one height from left to right, in one fixed-pitch
/// font (a Chinese character is two columns).
struct PageDocument {
  std::string name;  ///< of the job, for the print queue and the PDF's file name
  double fontPoints = 9;
  std::vector<PlacedText> texts;

  /// Height of one text line in twips.
  int lineHeight() const;
};

/// The system's default printer, or a folder that gets one PDF per job.
class PagePrinter {
 public:
  /// The width is the roll's. An empty folder means the system's default printer. The clock dates
  /// the PDFs' file names.
  explicit PagePrinter(int paperWidthMm, std::filesystem::path pdfFolder = {},
                       Clock clock = localTime);
  virtual ~PagePrinter() = default;

  /// Prints the job on paper as long as needed, in pages of five metres when it is longer: at most
  /// fontPoints large, and so that a full line (40 columns on 80 mm, 32 on 58 mm) fits. A text that
  /// would reach the next one at its height, or leave the paper, is set narrower; control
  /// characters are left out. The PDFs' file names sort in print order. Throws PortError when there
  /// is no printer, or the folder or the job fails.
  virtual void print(const PageDocument& document);

 private:
  int paperWidthMm_;
  std::filesystem::path pdfFolder_;
  Clock clock_;
};
