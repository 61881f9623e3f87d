#include <gmock/gmock.h>
#include <sys/resource.h>

#include <QProcess>
#include <csignal>

#include <fstream>

#include "TemporaryFolder.h"
#include "base/FileError.h"
#include "reports/ListExport.h"
#include "reports/ResultList.h"

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::ThrowsMessage;

class ExportTest : public testing::Test {
 protected:
  ExportTest() {
    SoldPage page;
    page.goods = {{"0012", "=cmd|'x'!A1", "a\"b", "-69", "@饮料"}};
    page.lines.resize(2);
    page.lines[0] = {DateTime{{2026, 11, 22}, 9, 5, 3}, 12, 0, 2.5, *Currency::parse("1.99"), 0.9F,
                     *Currency::parse("4.48")};
    list_.append(page);
    list_.complete();
  }
  bool write(const std::string& name) {
    return exportList(folder_.path() / name, {{"商品查询", "条件：+1"}, list_},
                      [](std::size_t) { return true; });
  }
  std::string part(const std::string& file, const QString& name) const {
    QProcess unzip;
    unzip.start("unzip", {"-p", QString::fromStdString(folder_.file(file)), name});
    EXPECT_TRUE(unzip.waitForFinished() && unzip.exitCode() == 0) << "unzip does not read it";
    return unzip.readAllStandardOutput().toStdString();
  }
  std::size_t filesLeft() const {
    const fs::directory_iterator files(folder_.path());
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
  }
  ResultList list_;
  TemporaryFolder folder_;
};

TEST_F(ExportTest, CsvHoldsTheListAsShownAndNoFormulas) {
  ASSERT_TRUE(write("a.CSV"));
  std::ifstream file(folder_.file("a.CSV"), std::ios::binary);
  EXPECT_EQ(
      std::string(std::istreambuf_iterator<char>(file), {}),
      "\xEF\xBB\xBF\"商品查询\"\r\n\"条件：+1\"\r\n"
      "\"日期\",\"单号\",\"编码\",\"商品名称\",\"单位\",\"数量\",\"零售价\",\"折扣\","
      "\"金额小计\",\"成本单价\",\"成本金额\",\"销售毛利\",\"商品条码\",\"商品类别\"\r\n"
      "2026-11-22 09:05:03,12,\"0012\",\"'=cmd|'x'!A1\",\"a\"\"b\",2.5,1.99,0.9,4.48,"
      "\"***\",\"***\",\"***\",\"'-69\",\"'@饮料\"\r\n"
      ",,\"0012\",\"'=cmd|'x'!A1\",\"a\"\"b\",,,,,\"***\",\"***\",\"***\",\"'-69\",\"'@饮料\"\r\n"
      "\"合计\",,,,,2,,,4.48,,\"***\",\"***\",,\r\n");
}

TEST_F(ExportTest, SpreadsheetHoldsNumbersTimesAndTexts) {
  ASSERT_TRUE(write("a.xlsx"));
  const std::string sheet = part("a.xlsx", "xl/worksheets/sheet1.xml");
  for (const char* cell : {
           R"(<is><t>条件：+1</t></is>)",
           R"(<c r="B4"><v>12</v></c>)",
           R"(<c r="C4" t="inlineStr"><is><t>0012</t></is></c>)",
           R"(<c r="D4" t="inlineStr"><is><t>=cmd|'x'!A1</t></is></c>)",
           R"(<c r="F4"><v>2.5</v></c><c r="G4"><v>1.99</v></c><c r="H4"><v>0.9</v></c>)",
           R"(<c r="M4" t="inlineStr"><is><t>-69</t></is></c>)",
           R"(<v>2</v></c>)",
       }) {
    EXPECT_THAT(sheet, HasSubstr(cell));
  }
  // 46348 days and 9:05:03 of the spreadsheet's calendar.
  EXPECT_THAT(sheet, testing::ContainsRegex(R"(<c r="A4" s="[0-9]"><v>46348\.3785)"));
  EXPECT_THAT(sheet, testing::ContainsRegex(R"(<c r="I6" s="[0-9]"><v>4\.48</v>)"));
  EXPECT_THAT(sheet, testing::Not(HasSubstr("<f>")));
  EXPECT_THAT(part("a.xlsx", "xl/styles.xml"), HasSubstr("yyyy-mm-dd hh:mm:ss"));
}

TEST_F(ExportTest, IsItsOwnersAndWhatIsNotWholeLeavesTheOldFile) {
  for (const std::string name : {"a.csv", "a.xlsx"}) {
    ASSERT_TRUE(write(name));
    EXPECT_EQ(fs::status(folder_.file(name)).permissions(), fs::perms(0600));
    const auto size = fs::file_size(folder_.file(name));
    EXPECT_FALSE(exportList(folder_.path() / name, {{}, list_}, [](std::size_t) { return false; }));
    rlimit unlimited{};
    getrlimit(RLIMIT_FSIZE, &unlimited);
    const rlimit small{100, unlimited.rlim_max};
    const auto handler = signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_THAT([&] { (void)write(name); }, ThrowsMessage<FileError>(HasSubstr(name)));
    setrlimit(RLIMIT_FSIZE, &unlimited);
    signal(SIGXFSZ, handler);
    EXPECT_EQ(fs::file_size(folder_.file(name)), size);
    EXPECT_EQ(filesLeft(), 1u);
    EXPECT_THAT([&] { (void)write("none/" + name); },
                ThrowsMessage<FileError>(HasSubstr("none/" + name)));
    fs::remove(folder_.file(name));
  }
}
