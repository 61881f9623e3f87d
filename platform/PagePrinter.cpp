#include "platform/PagePrinter.h"

#include <QBuffer>
#include <QFont>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "base/SystemFault.h"
#include "base/WholeFile.h"
#include "platform/PdfName.h"
#include "platform/PortError.h"
#include "platform/QtText.h"
#include "platform/Twips.h"

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kMmPerInch = 25.4;
/// Between two texts at the same height.
constexpr double kColumnGap = 40;
/// Above, left and right of the text, unless the printer itself leaves more.
constexpr double kMarginMm = 2;
/// Below the last line, so that it can be torn off.
constexpr double kFeedMm = 5;
/// A PDF page is at most 14,400 points long (ISO 32000-1, annex C); this leaves room for the
/// margins.
constexpr int kLongestTwips = 14'000 * 20;

double twipsOf(double mm) {
  return mm / kMmPerInch * kTwipsPerInch;
}
double mmOf(double twips) {
  return twips / kTwipsPerInch * kMmPerInch;
}

/// A document on its paper.
struct Job {
  const PageDocument& document;
  PageRoll roll;
};

/// Sized in twips, not larger than the document wants and so that a full line fits.
QFont fixedPitchFont(const Job& job, double lineTwips) {
  QFont font(QStringList{"Noto Sans Mono CJK SC", "WenQuanYi Zen Hei Mono", "SimSun", "NSimSun"});
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  font.setPixelSize(1000);
  const QFontMetricsF metrics(font);
  const double column =
      // untranslated: a character to measure by
      std::max(metrics.horizontalAdvance("0"), metrics.horizontalAdvance("中") / 2) / 1000;
  const double fitting = lineTwips / (job.roll.columns * column);
  font.setPixelSize(
      static_cast<int>(std::floor(std::min(job.document.fontPoints * kTwipsPerPoint, fitting))));
  return font;
}

/// A part of the roll, in twips from its top.
struct Page {
  int top = 0;
  int bottom = 0;
  std::vector<const PlacedText*> texts;
};

/// The roll in pages no longer than a page may be, broken between lines.
std::vector<Page> pagesOf(const PageDocument& document) {
  std::vector<Page> pages(1);
  for (const PlacedText& text : document.texts) {
    const int bottom = text.y + document.lineHeight();
    if (bottom - pages.back().top > kLongestTwips) pages.push_back({text.y, bottom, {}});
    pages.back().bottom = std::max(pages.back().bottom, bottom);
    pages.back().texts.push_back(&text);
  }
  return pages;
}

/// Without what moves the place of the following characters instead of being one, and without the
/// blanks at the end.
QString visible(const std::string& text) {
  QString result = qtText(text);
  result.removeIf([](QChar c) {
    const QChar::Category category = c.category();
    return category == QChar::Other_Control || category == QChar::Other_Format ||
           category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
  });
  while (result.endsWith(' ')) result.chop(1);
  return result;
}

void drawText(QPainter& painter, const PlacedText& placed, double room) {
  const QString text = visible(placed.text);
  const double width = QFontMetricsF(painter.font()).horizontalAdvance(text);
  painter.save();
  // Chinese characters stand in a square whose top is at y; their base line is at 0.88 of it.
  painter.translate(placed.x, placed.y + 0.88 * painter.font().pixelSize());
  // A text too long for its place is set narrower: better small than cut off or printed over.
  if (width > room && room > 0) painter.scale(room / width, 1);
  painter.drawText(QPointF(0, 0), text);
  painter.restore();
}

/// Each text has the room up to the next one at its height, the last one up to the paper's edge.
void drawTexts(QPainter& painter, const std::vector<const PlacedText*>& texts, double lineTwips) {
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const PlacedText& text = *texts[i];
    const bool hasNeighbour = i + 1 < texts.size() && texts[i + 1]->y == text.y;
    drawText(painter, text, (hasNeighbour ? texts[i + 1]->x - kColumnGap : lineTwips) - text.x);
  }
}

/// In twips.
QMarginsF marginsOf(const QPagedPaintDevice& device) {
  QPageLayout layout = device.pageLayout();
  layout.setUnits(QPageLayout::Point);
  const double own = twipsOf(kMarginMm);
  return layout.minimumMargins() * kTwipsPerPoint | QMarginsF(own, own, own, own);
}

void setPaper(QPagedPaintDevice& device, int widthMm, double lengthMm) {
  const QPageSize size(QSizeF(widthMm, lengthMm), QPageSize::Millimeter, "roll",
                       QPageSize::ExactMatch);
  QPageLayout layout(size, QPageLayout::Portrait, QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);
  device.setPageLayout(layout);
}

/// Draws the whole job, on one page of the roll if it is not too long for that. False when the
/// device refuses.
bool draw(const Job& job, QPagedPaintDevice& device) {
  const QMarginsF margins = marginsOf(device);
  const double lineTwips = twipsOf(job.roll.widthMm) - margins.left() - margins.right();
  QPainter painter;
  for (const Page& page : pagesOf(job.document)) {
    setPaper(device, job.roll.widthMm, mmOf(margins.top() + page.bottom - page.top) + kFeedMm);
    if (!(painter.isActive() ? device.newPage() : painter.begin(&device))) return false;
    painter.resetTransform();
    painter.scale(device.logicalDpiX() / kTwipsPerInch, device.logicalDpiY() / kTwipsPerInch);
    painter.translate(margins.left(), margins.top() - page.top);
    painter.setFont(fixedPitchFont(job, lineTwips));
    drawTexts(painter, page.texts, lineTwips);
  }
  return painter.end();
}

QByteArray pdfOf(const Job& job) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(qtText(job.document.name));
  if (!draw(job, writer)) throw PortError(PortError::tr("打印失败：不能生成 PDF"));
  return bytes;
}

/// Has its name when it is whole, so that a program that watches the folder never takes half a job.
void printToFolder(const Job& job, const std::filesystem::path& folder, const DateTime& now) {
  const QByteArray pdf = pdfOf(job);
  try {
    WholeFile file(folder / nextPdfName(folder, now, job.document.name));
    file.append({pdf.data(), static_cast<std::size_t>(pdf.size())});
    file.finish();
  } catch (const FileError& error) {
    throw PortError(PortError::tr("打印文件夹写不进：%1").arg(qtText(error.what())));
  } catch (const std::filesystem::filesystem_error& error) {
    const std::string why = fileFault(error.code().value());
    throw PortError(
        PortError::tr("打印文件夹 %1 写不进：%2").arg(qtText(folder.string()), qtText(why)));
  }
}

void printOnDefaultPrinter(const Job& job) {
  const QPrinterInfo info = QPrinterInfo::defaultPrinter();
  if (info.isNull()) throw PortError(PortError::tr("没有默认打印机"));
  QPrinter printer(info, QPrinter::HighResolution);
  printer.setDocName(qtText(job.document.name));
  if (!draw(job, printer) || printer.printerState() == QPrinter::Error) {
    throw PortError(PortError::tr("打印机 %1 打印失败").arg(info.printerName()));
  }
}

}  // namespace

void paintOnRoll(QPainter& painter, const PageDocument& document, PageRoll roll) {
  const double margin = twipsOf(kMarginMm);
  const double lineTwips = twipsOf(roll.widthMm) - 2 * margin;
  painter.translate(margin, margin);
  painter.setFont(fixedPitchFont({document, roll}, lineTwips));
  std::vector<const PlacedText*> texts;
  for (const PlacedText& text : document.texts) texts.push_back(&text);
  drawTexts(painter, texts, lineTwips);
}

PagePrinter::PagePrinter(PageRoll roll, std::filesystem::path pdfFolder, Clock clock)
    : roll_(roll), pdfFolder_(std::move(pdfFolder)), clock_(std::move(clock)) {}

void PagePrinter::print(const PageDocument& document) {
  const Job job{document, roll_};
  if (pdfFolder_.empty()) {
    printOnDefaultPrinter(job);
  } else {
    printToFolder(job, pdfFolder_, clock_());
  }
}
