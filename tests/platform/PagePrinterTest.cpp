#include "platform/PagePrinter.h"

#include <gmock/gmock.h>

#include <QPageSize>
#include <QProcess>
#include <QRegularExpression>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "TemporaryFolder.h"
#include "platform/PortError.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

PageDocument receipt(const std::string& name, int lines) {
  PageDocument document;
  document.name = name;
  for (int i = 0; i < lines; ++i) document.texts.push_back({1, 300 + i * 400, "可乐 3.00"});
  return document;
}

std::vector<std::string> filesIn(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename());
  std::ranges::sort(names);
  return names;
}

/// Width and height of the only page, in points.
QSizeF pageSize(const fs::path& pdf) {
  std::ifstream stream(pdf, std::ios::binary);
  const QByteArray bytes = QByteArray::fromStdString({std::istreambuf_iterator<char>(stream), {}});
  EXPECT_TRUE(bytes.startsWith("%PDF") && bytes.trimmed().endsWith("%%EOF"));
  auto boxes = QRegularExpression(R"(/MediaBox \[0 0 ([\d.]+) ([\d.]+)\])")
                   .globalMatch(QString::fromLatin1(bytes));
  if (!boxes.hasNext()) return {};
  const auto box = boxes.next();
  EXPECT_FALSE(boxes.hasNext()) << "a roll is one page";
  return {box.captured(1).toDouble(), box.captured(2).toDouble()};
}

TEST(PagePrinterTest, NamesSortInPrintOrder) {
  const TemporaryFolder folder;
  DateTime now{{2026, 11, 22}, 9, 5, 3};
  const auto print = [&](const std::string& name) {
    PagePrinter(folder.path(), [&now] { return now; }).print(receipt(name, 1));
  };
  print("z");
  print("a/..\n:b");
  now.second = 4;
  print("小票");
  now.hour = 8;  // set back
  print("");
  EXPECT_THAT(filesIn(folder.path()),
              ElementsAre("20261122-090503-0001-z.pdf", "20261122-090503-0002-a_..__b.pdf",
                          "20261122-090504-0001-小票.pdf", "20261122-090504-0002-.pdf"));
  print(std::string(10'000, 'x'));
  EXPECT_EQ(filesIn(folder.path()).size(), 5U);
}

TEST(PagePrinterTest, PaperIsAsWideAsTheRollAndAsLongAsTheText) {
  for (const auto& [width, lines] : {std::pair{80, 3}, {58, 3}, {80, 200}}) {
    const TemporaryFolder folder;
    PageDocument document = receipt("r", lines);
    document.paperWidthMm = width;
    document.texts.push_back({1, 0, std::string(10'000, 'x')});
    PagePrinter(folder.path()).print(document);
    const QSizeF size = pageSize(folder.path() / filesIn(folder.path()).at(0));
    EXPECT_NEAR(size.width(), width / 25.4 * 72, 1);
    const double textBottom = (document.texts[lines - 1].y + document.lineHeight()) / 20.0;
    EXPECT_GT(size.height(), textBottom);
    EXPECT_LT(size.height(), textBottom + 30);
  }
}

TEST(PagePrinterTest, ARollLongerThanAPageContinuesOnTheNext) {
  const TemporaryFolder folder;
  PagePrinter(folder.path()).print(receipt("r", 2000));
  const std::string file = folder.file(filesIn(folder.path()).at(0));
  QProcess reader;
  reader.start("pdftotext", {QString::fromStdString(file), "-"});
  ASSERT_TRUE(reader.waitForFinished()) << "pdftotext is missing";
  const QByteArray text = reader.readAllStandardOutput();
  EXPECT_EQ(text.count("3.00"), 2000);
  EXPECT_EQ(text.count('\f'), 3) << "800,000 twips in pages of 280,000";
}

TEST(PagePrinterTest, SaysThatThereIsNowhereToPrint) {
  const TemporaryFolder folder;
  std::ofstream(folder.file("file")) << "x";
  EXPECT_THROW(PagePrinter(folder.path() / "missing").print(receipt("r", 1)), PortError);
  EXPECT_THROW(PagePrinter(folder.path() / "file").print(receipt("r", 1)), PortError);
  qputenv("CUPS_SERVER", "/nonexistent/cups.sock");  // so that no real printer answers
  EXPECT_THROW(PagePrinter().print(receipt("r", 1)), PortError);
}

}  // namespace
