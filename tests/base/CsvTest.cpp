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

TEST(CsvTest, ReadsWhatSpreadsheetsAndPeopleWrite) {
  const std::pair<std::string, Table> cases[] = {
      {"a,b\n1,2", {{"a", "b"}, {"1", "2"}}},
      {"a,b\r\n\r\n1,2\r\n\r\n", {{"a", "b"}, {"1", "2"}}},
      {",\n,,x\n", {{"", ""}, {"", "", "x"}}},
      {" a ,b \n", {{" a ", "b "}}},
      {"\"a,\"\"b\"\"\",\"\"\n", {{"a,\"b\"", ""}}},
      {"\"a\nb\",\"c\r\nd\"\n", {{"a\nb", "c\r\nd"}}},
      {"\xEF\xBB\xBF名称,x\n", {{"名称", "x"}}},
      {"红烧牛肉面,4.5\n", {{"红烧牛肉面", "4.5"}}},
      {gbk::encode("红烧牛肉面,\"镕\n\"\n"), {{"红烧牛肉面", "镕\n"}}}};
  for (const auto& [text, rows] : cases) EXPECT_EQ(readAll(text), rows) << text;
  // A character that lies across two pieces of the first pass must not make the text GBK.
  for (std::size_t shift = 0; shift < 3; ++shift) {
    std::string name(shift, 'x');
    for (int count = 0; count < 100'000; ++count) name += "面";
    EXPECT_EQ(readAll(name + "\n"), (Table{{name}})) << shift;
    EXPECT_EQ(readAll(gbk::encode(name) + "\n"), (Table{{name}})) << shift;
  }
}

TEST(CsvTest, NamesTheLineThatIsNoRow) {
  const std::pair<std::string, const char*> cases[] = {
      {"a\n1\n\"2\n3\n", "第 3 行引号没有结束"},
      {"a\n1\"\n", "第 2 行引号只能"},
      {"a\n\"x\ny\"z\n", "第 2 行引号后面还有文字"},
      {"a\n名\xFF\n", "第 2 行含有既不是"},
      {"\xEF\xBB\xBF"
       "a\n\xC3\xFB\n",
       "第 2 行含有既不是"},
      {std::string("a\nx\0y\n", 6), "第 2 行含有不是文字"},
      {"\xFF\xFE"
       "a",
       "UTF-16"},
      {"a\n\"" + std::string(2'000'000, 'x'), "第 2 行太长"}};
  for (const auto& [text, why] : cases)
    EXPECT_THAT([&text = text] { readAll(text); },
                testing::ThrowsMessage<CsvError>(testing::HasSubstr(why)));
}

}  // namespace
