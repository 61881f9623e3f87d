#include <gmock/gmock.h>

#include <sstream>
#include <string>
#include <vector>

#include "base/CsvReader.h"
#include "base/Gbk.h"

namespace {

using Table = std::vector<std::vector<std::string>>;

Table readAll(const std::string& text) {
  std::istringstream in(text);
  CsvReader reader(in);
  Table rows;
  std::vector<std::string> fields;
  while (reader.next(fields)) rows.push_back(fields);
  return rows;
}

std::string refusalOf(const std::string& text) {
  try {
    readAll(text);
  } catch (const CsvError& refusal) {
    return refusal.what();
  }
  return "(read)";
}

TEST(CsvTest, ReadsWhatSpreadsheetsAndPeopleWrite) {
  const struct {
    const char* what;
    std::string text;
    Table rows;
  } cases[] = {
      {"LF, no line end at the end", "a,b\n1,2", {{"a", "b"}, {"1", "2"}}},
      {"CR LF and empty lines", "a,b\r\n\r\n1,2\r\n\r\n", {{"a", "b"}, {"1", "2"}}},
      {"empty fields", ",\n,,x\n", {{"", ""}, {"", "", "x"}}},
      {"blanks belong to the field", " a ,b \n", {{" a ", "b "}}},
      {"quotes", "\"a,\"\"b\"\"\",\"\"\n", {{"a,\"b\"", ""}}},
      {"line ends in quotes", "\"a\nb\",\"c\r\nd\"\n", {{"a\nb", "c\r\nd"}}},
      {"byte order mark", "\xEF\xBB\xBF名称,x\n", {{"名称", "x"}}},
      {"UTF-8", "红烧牛肉面,4.5\n", {{"红烧牛肉面", "4.5"}}},
      {"GBK", gbk::encode("红烧牛肉面,\"镕\n\"\n"), {{"红烧牛肉面", "镕\n"}}},
  };
  for (const auto& [what, text, rows] : cases) EXPECT_EQ(readAll(text), rows) << what;
}

TEST(CsvTest, NamesTheLineThatIsNoRow) {
  const struct {
    const char* what;
    std::string text;
    const char* refusal;
  } cases[] = {
      {"open quote", "a\n1\n\"2\n3\n", "第 3 行引号没有结束"},
      {"quote inside", "a\n1\"\n", "第 2 行引号只能"},
      {"text after quote", "a\n\"x\ny\"z\n", "第 2 行引号后面还有文字"},
      {"neither code", "a\n名\xFF\n", "第 2 行含有既不是"},
      {"broken UTF-8 behind a mark",
       "\xEF\xBB\xBF"
       "a\n\xC3\xFB\n",
       "第 2 行含有既不是"},
      {"binary", std::string("a\nx\0y\n", 6), "第 2 行含有不是文字"},
      {"UTF-16",
       "\xFF\xFE"
       "a",
       "UTF-16"},
      {"open quote swallows the file", "a\n\"" + std::string(2'000'000, 'x'), "第 2 行太长"},
  };
  for (const auto& [what, text, refusal] : cases) {
    EXPECT_THAT(refusalOf(text), testing::HasSubstr(refusal)) << what;
  }
}

// A character that lies across two pieces of the first pass must not make the text GBK.
TEST(CsvTest, RecognisesLongTexts) {
  for (std::size_t shift = 0; shift < 3; ++shift) {
    std::string name(shift, 'x');
    for (int count = 0; count < 100'000; ++count) name += "面";
    EXPECT_EQ(readAll(name + "\n"), (Table{{name}})) << shift;
    EXPECT_EQ(readAll(gbk::encode(name) + "\n"), (Table{{name}})) << shift;
  }
}

}  // namespace
