#include "platform/PagePrinter.h"

#include <gmock/gmock.h>

#include <QProcess>
#include <QRegularExpression>
#include <fstream>

#include "TemporaryFolder.h"
#include "platform/PortError.h"

namespace fs = std::filesystem;

constexpr PageRoll kWide{80, 40}, kNarrow{58, 32};

class PagePrinterTest : public testing::Test {
 protected:
  static PageDocument receipt(const std::string& name, int lines) {
    PageDocument document;
    document.name = name;
    for (int i = 0; i < lines; ++i) document.texts.push_back({1, 300 + i * 400, "可乐 3.00"});
    return document;
  }
  void print(PageRoll roll, const PageDocument& document) const {
    PagePrinter(roll, folder.path(), [this] { return now; }).print(document);
  }
  std::vector<std::string> files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.path()))
      names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
  }
  /// What a PDF tool says of the last page document.
  QString told(const char* tool, const QStringList& further = {}) const {
    QProcess reader;
    reader.start(tool, QStringList{QString::fromStdString(folder.file(files().back()))} + further);
    EXPECT_TRUE(reader.waitForFinished()) << tool << " is missing";
    return QString::fromUtf8(reader.readAllStandardOutput());
  }
  TemporaryFolder folder;
  DateTime now{{2026, 11, 22}, 9, 5, 3};
};

TEST_F(PagePrinterTest, NamesSortInPrintOrder) {
  print(kWide, receipt("a/..\n:b", 1));
  print(kWide, receipt("小票", 1));
  now.hour = 8;  // set back
  print(kWide, receipt("", 1));
  EXPECT_THAT(files(),
              testing::ElementsAre("20261122-090503-0001-a_..__b.pdf",
                                   "20261122-090503-0002-小票.pdf", "20261122-090503-0003-.pdf"));
  EXPECT_NO_THROW(print(kWide, receipt(std::string(10'000, 'x'), 1))) << "costs no paper";
}

TEST_F(PagePrinterTest, PaperIsAsWideAsTheRollAndAsLongAsTheText) {
  const std::string tooLong(10'000, 'x');
  for (const auto& [roll, lines] : {std::pair{kWide, 3}, {kNarrow, 3}, {kWide, 200}}) {
    PageDocument document = receipt("r", lines);
    document.texts.push_back({1, 0, tooLong});
    print(roll, document);
    const auto size = QRegularExpression(R"(Pages: +1\n[^$]*Page size: +([\d.]+) x ([\d.]+) pts)")
                          .match(told("pdfinfo"));
    EXPECT_NEAR(size.captured(1).toDouble(), roll.widthMm / 25.4 * 72, 1);
    const double textBottom = (300 + (lines - 1) * 400 + document.lineHeight()) / 20.0;
    EXPECT_NEAR(size.captured(2).toDouble(), textBottom + 15, 15);
  }
}

TEST_F(PagePrinterTest, ATextEndsBeforeTheNextColumnAndHasNoControlCharacters) {
  PageDocument document;
  document.texts = {{1, 0, "\r\x1Bp\u202E7\n "}, {1900, 0, " 12345.678 "}, {2300, 0, "5.0"}};
  print(kNarrow, document);
  const QRegularExpression word(R"re(xMin="([\d.]+)".* xMax="([\d.]+)".*>(.+)</word>)re");
  QString texts;
  double end = 0;
  for (const auto& match : word.globalMatch(told("pdftotext", {"-bbox", "-"}))) {
    EXPECT_GT(match.captured(1).toDouble(), end + 1) << match.captured(3).toStdString();
    end = match.captured(2).toDouble();
    texts += match.captured(3) + ' ';
  }
  EXPECT_EQ(texts, "p7 12345.678 5.0 ");
}

TEST_F(PagePrinterTest, ARollLongerThanAPageContinuesOnTheNext) {
  print(kWide, receipt("r", 2000));
  const QString text = told("pdftotext", {"-"});
  EXPECT_EQ(text.count("3.00"), 2000);
  EXPECT_EQ(text.count('\f'), 3) << "800,000 twips in pages of 280,000";
}

TEST_F(PagePrinterTest, SaysThatThereIsNowhereToPrint) {
  qputenv("CUPS_SERVER", "/nonexistent/cups.sock");  // so that no real printer answers
  const std::pair<fs::path, const char*> cases[] = {
      {folder.path() / "missing", "写不进：文件夹不存在"}, {{}, "没有默认打印机"}};
  for (const auto& [to, why] : cases)
    EXPECT_THAT([&to = to] { PagePrinter(kWide, to).print(receipt("r", 1)); },
                testing::ThrowsMessage<PortError>(testing::HasSubstr(why)));
}
