#include "access/AccessFile.h"

#include <gmock/gmock.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <random>

#include "TemporaryFolder.h"
#include "access/JetValues.h"
#include "base/Failure.h"

namespace {

std::string sample(const std::string& name) {
  std::ifstream file(TILL_ACCESS_SAMPLES + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Reads a whole file of these bytes: how many rows it has, or what is wrong with it.
std::string outcomeOf(const std::string& bytes) {
  const TemporaryFolder folder;
  const std::string path = folder.file("old.mdb");
  std::ofstream(path, std::ios::binary) << bytes;
  try {
    std::size_t rows = 0;
    const AccessFile file(path);
    for (const AccessTable& table : file.tables()) {
      if (table.isLinked) continue;
      file.read(table, [&](const AccessRow& row) { rows += row.size() == table.columns.size(); });
    }
    return std::to_string(rows);
  } catch (const Failure& failure) {
    return failure.what();
  }
}

}  // namespace

// A library of C reads these files: whatever it does, there are rows or there is a text.
TEST(AccessFileTest, SurvivesDamagedFiles) {
  const std::pair<const char*, const char*> samples[] = {{"sample-jet4.mdb", "21"},
                                                         {"sample-jet3.mdb", "4"}};
  std::mt19937 random(7);
  for (const auto& [name, rows] : samples) {
    const std::string whole = sample(name);
    EXPECT_EQ(outcomeOf(whole), rows);
    int refused = 0;
    for (std::size_t round = 0; round < 25; ++round) {
      const std::size_t rest = whole.size() * round / 25;
      EXPECT_THAT(outcomeOf(whole.substr(0, rest)), testing::HasSubstr("Access ")) << rest;
      EXPECT_THAT(outcomeOf(whole.substr(0, rest / 4096 * 4096)), testing::HasSubstr("Access "));
      std::string damaged = whole;
      for (int hits = 0; hits < 20;) {
        char& byte = damaged[random() % whole.size()];
        if (byte == 0) continue;  // most of a page is
        byte = static_cast<char>(random());
        ++hits;
      }
      refused += outcomeOf(damaged).size() > 4 ? 1 : 0;
    }
    EXPECT_GT(refused, 5);
  }
}

TEST(JetValuesTest, ReadsBothFormsOfText) {
  const std::string cases[][2] = {{std::string("\x2D\x4E\x41\0", 4), "中A"},
                                  {std::string("\xFF\xFE"
                                               "A\xE9",
                                               4),
                                   "Aé"},
                                  {std::string("\xFF\xFE"
                                               "A\0\x2D\x4E\0B",
                                               8),
                                   "A中B"},
                                  {std::string("\x42\xD8\xB7\xDF", 4), "𠮷"},
                                  {std::string("\x42\xD8\x41\0", 4),
                                   "\xEF\xBF\xBD"
                                   "A"},
                                  {"\xFF\xFE", ""},
                                  {"\x2D", ""}};
  for (const auto& [bytes, text] : cases) EXPECT_EQ(jet4Text(bytes), text);
}

TEST(JetValuesTest, ReadsDatesToTheSecond) {
  const std::pair<double, DateTime> cases[] = {{0.0, {{1899, 12, 30}}},
                                               {-1.25, {{1899, 12, 29}, 6}},
                                               {46348.378506944, {{2026, 11, 22}, 9, 5, 3}},
                                               {46348.9999999, {{2026, 11, 23}}},
                                               {2958465.99998843, {{9999, 12, 31}, 23, 59, 59}}};
  for (const auto& [days, time] : cases) EXPECT_EQ(std::get<DateTime>(jetDate(days)), time) << days;
  for (const double none : {2958466.0, -657435.5, 1e300, -1e300})
    EXPECT_TRUE(std::holds_alternative<double>(jetDate(none))) << none;
  EXPECT_TRUE(std::holds_alternative<double>(jetDate(std::nan(""))));
}
