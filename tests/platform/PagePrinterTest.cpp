#include "platform/PagePrinter.h"

#include <gmock/gmock.h>

#include <QProcess>
#include <QRegularExpression>
#include <fstream>

#include "TemporaryFolder.h"
#include "platform/PortError.h"

namespace {

namespace fs = std::filesystem;

constexpr PageRoll kWide{80, 40}, kNarrow{58, 32};

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

/// What a PDF tool says of the only file in the folder.
QString told(const char* tool, const fs::path& folder, const QStringList& further = {}) {
  const fs::path pdf = folder / filesIn(folder).at(0);
  QProcess reader;
  reader.start(tool, QStringList{QString::fromStdString(pdf.string())} + further);
  EXPECT_TRUE(reader.waitForFinished()) << tool << " is missing";
  return QString::fromUtf8(reader.readAllStandardOutput());
}

TEST(PagePrinterTest, NamesSortInPrintOrder) {
  const TemporaryFolder folder;
  DateTime now{{2026, 11, 22}, 9, 5, 3};
  const auto print = [&](const std::string& name) {
    PagePrinter(kWide, folder.path(), [&now] { return now; }).print(receipt(name, 1));
  };
  print("a/..\n:b");
  print("小票");
  now.hour = 8;  // set back
  print("");
  EXPECT_THAT(filesIn(folder.path()),
              testing::ElementsAre("20261122-090503-0001-a_..__b.pdf",
                                   "20261122-090503-0002-小票.pdf", "20261122-090503-0003-.pdf"));
  EXPECT_NO_THROW(print(std::string(10'000, 'x'))) << "too long a name costs no paper";
}

TEST(PagePrinterTest, PaperIsAsWideAsTheRollAndAsLongAsTheText) {
  for (const auto& [roll, lines] : {std::pair{kWide, 3}, {kNarrow, 3}, {kWide, 200}}) {
    const TemporaryFolder folder;
    PageDocument document = receipt("r", lines);
    document.texts.push_back({1, 0, {}});
    document.texts.back().text.assign(10'000, 'x');
    PagePrinter(roll, folder.path()).print(document);
    const auto size = QRegularExpression(R"(Pages: +1\n[^$]*Page size: +([\d.]+) x ([\d.]+) pts)")
                          .match(told("pdfinfo", folder.path()));
    EXPECT_NEAR(size.captured(1).toDouble(), roll.widthMm / 25.4 * 72, 1);
    const double textBottom = (document.texts[lines - 1].y + document.lineHeight()) / 20.0;
    EXPECT_NEAR(size.captured(2).toDouble(), textBottom + 15, 15);
  }
}

TEST(PagePrinterTest, ATextEndsBeforeTheNextColumnAndHasNoControlCharacters) {
  const TemporaryFolder folder;
  PageDocument document;
  document.texts = {{1, 0, "\r\x1Bp\u202E7\n "}, {1900, 0, " 12345.678 "}, {2300, 0, "5.0"}};
  PagePrinter(kNarrow, folder.path()).print(document);
  const QString words = told("pdftotext", folder.path(), {"-bbox", "-"});
  const QRegularExpression word(R"re(xMin="([\d.]+)".* xMax="([\d.]+)".*>(.+)</word>)re");
  QString texts;
  double end = 0;
  for (auto found = word.globalMatch(words); found.hasNext(); texts += ' ') {
    const auto match = found.next();
    EXPECT_GT(match.captured(1).toDouble(), end + 1) << match.captured(3).toStdString();
    end = match.captured(2).toDouble();
    texts += match.captured(3);
  }
  EXPECT_EQ(texts, "p7 12345.678 5.0 ");
}

TEST(PagePrinterTest, ARollLongerThanAPageContinuesOnTheNext) {
  const TemporaryFolder folder;
  PagePrinter(kWide, folder.path()).print(receipt("r", 2000));
  const QString text = told("pdftotext", folder.path(), {"-"});
  EXPECT_EQ(text.count("3.00"), 2000);
  EXPECT_EQ(text.count('\f'), 3) << "800,000 twips in pages of 280,000";
}

TEST(PagePrinterTest, SaysThatThereIsNowhereToPrint) {
  const TemporaryFolder folder;
  qputenv("CUPS_SERVER", "/nonexistent/cups.sock");  // so that no real printer answers
  const std::pair<fs::path, const char*> cases[] = {
      {folder.path() / "missing", "写不进：文件夹不存在"}, {{}, "没有默认打印机"}};
  for (const auto& [to, why] : cases) {
    EXPECT_THAT([&] { PagePrinter(kWide, to).print(receipt("r", 1)); },
                testing::ThrowsMessage<PortError>(testing::HasSubstr(why)));
  }
}

}  // namespace
