#include "setup/TerminalTill.h"

#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

#include "TemporaryFolder.h"
#include "tools/Tool.h"

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

struct TerminalTillTest : testing::Test {
  TemporaryFolder folder;
  const std::string shop = folder.file("data/POS.mdb");
  std::string said;

  TerminalTillTest() {
    std::ofstream(folder.file("lpt1")).flush();
    std::ofstream(folder.file("Config.ini")) << "[Ports]\nLPT1=" << folder.file("lpt1")
                                             << "\n[Till]\nBackupTo=/media/old\n[POS]\nVMouse=1\n";
  }
  std::string of(const char* section, const char* key) const {
    return IniFile(folder.file("Config.ini")).read(section, key).value_or("(none)");
  }
  int setUp(const std::string& typed) {
    std::istringstream in(typed);
    std::ostringstream out;
    Console console{in, out, out, [] { return DateTime{{2026, 11, 22}, 9, 5, 3}; }};
    const char* words[] = {"tilladmin", "setup", shop.c_str()};
    const int code = runTool(3, words, console, [&](const fs::path& shopFolder) {
      return std::make_unique<TerminalTill>(shopFolder, console.clock);
    });
    said = out.str();
    return code;
  }
};

constexpr const char* kPrinter = "2\n2\n3\n\n\n\n\n\n";  // LPT1, narrow, two copies; the rest stays

TEST_F(TerminalTillTest, DevicesAreTriedAndEverythingIsStoredWhenAllIsAnswered) {
  const std::string people = "好邻居\n\n\n\n\n\n\n\n店主\n1\n\n\n\n";
  const std::string rules = "\n\n\n\n\n\n\n\n\n\n\nmedia/x\n/media/stick\n";
  const std::string all = "\n" + std::string(kPrinter) + "2\n1\n" + people + rules + "2\n";
  for (std::size_t end = all.find('\n'); end + 1 < all.size(); end = all.find('\n', end + 1)) {
    EXPECT_EQ(setUp(all.substr(0, end + 1)), 1);
    ASSERT_FALSE(fs::exists(folder.file("data"))) << end;
  }
  ASSERT_EQ(of("POS", "PPort"), "(none)");
  ASSERT_EQ(setUp(all), 0) << said;
  EXPECT_THAT(said, HasSubstr("是否启用鼠标：1 否，2 是 [2]："));
  EXPECT_THAT(said, HasSubstr("小票打印机：测试行已送到 LPT1\n"));
  EXPECT_THAT(said, HasSubstr("[/media/old]：\n请写文件夹的完整名字"));
  std::ifstream printed(folder.file("lpt1"), std::ios::binary);
  EXPECT_THAT(std::string(std::istreambuf_iterator<char>(printed), {}), HasSubstr("2026-11-22"));
  const std::pair<const char*, const char*> stored[] = {
      {"PPort", "LPT1"}, {"PModel", "2"}, {"VMouse", "1"}};
  for (const auto& [key, value] : stored) EXPECT_EQ(of("POS", key), value);
  EXPECT_EQ(of("Till", "Backups") + of("Till", "BackupTo"), "1/media/stick");
  EXPECT_EQ(of("Color", "C1"), std::to_string(0x302820));
  EXPECT_TRUE(fs::exists(shop));
}

TEST_F(TerminalTillTest, SettingsThatCannotBeStoredLeaveNoShop) {
  fs::permissions(folder.file("Config.ini"), fs::perms::owner_read);
  EXPECT_EQ(setUp("2\n" + std::string(kPrinter) + "\n\n"), 1);
  EXPECT_THAT(said, HasSubstr("设置写不进 Config.ini。"));
  EXPECT_FALSE(fs::exists(folder.file("data")));
}

}  // namespace
