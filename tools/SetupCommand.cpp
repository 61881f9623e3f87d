#include "tools/SetupCommand.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <memory>

#include "base/Failure.h"
#include "base/FileName.h"
#include "base/Text.h"
#include "base/Words.h"
#include "shop/NewShop.h"
#include "shop/Refusal.h"
#include "tools/DataFileOptions.h"
#include "tools/GoodsSheetTexts.h"
#include "tools/SetupQuestions.h"

namespace {

namespace fs = std::filesystem;

/// The folder of the shop whose till finds this data file without being told where it is; empty
/// when no till does.
fs::path shopFolderOf(const fs::path& dataFile) {
  const fs::path whole = fs::absolute(dataFile).lexically_normal();
  const fs::path data = whole.parent_path();
  const bool isFound = equalIgnoringCase(whole.filename().string(), "POS.mdb") &&
                       equalIgnoringCase(data.filename().string(), "data");
  return isFound ? data.parent_path() : fs::path();
}

void setUp(const DataFileOptions& file, Console& console, const TillSetupOf& tillSetup) {
  if (fs::exists(findIgnoringCase(file.path)))
    throw Refusal(Words::tr("已经有这个文件，不会覆盖：%1", file.path));
  const DataSource target = file.newSource(console);
  const fs::path folder = shopFolderOf(file.path);
  const std::unique_ptr<TillSetup> till =
      tillSetup && !folder.empty() ? tillSetup(folder) : nullptr;
  const NewShop shop = askForShop(console, till.get());
  const auto store = [&] {
    if (till) till->store(shop);
  };
  ProgressBar bar(console);
  ensure(makeShop(shop, target, console.clock, store, bar.goOn()), "nobody ends it");
  console.out << Words::tr("店铺已建好：%1", file.path) << '\n';
  if (till) return;
  console.out << Words::tr(
                     "打印机、钱箱、客显在收银程序的收银设置里选，颜色在功能菜单的颜色设置里选。")
              << '\n';
}

}  // namespace

void addSetupCommand(CLI::App& app, Console& console, const TillSetupOf& tillSetup) {
  CLI::App* command = app.add_subcommand(
      "setup", Words::tr("开店：一问一答，建立新的数据文件（不会覆盖已有的文件）"));
  command->footer(
      Words::tr("数据文件是店铺文件夹里的 data/POS.mdb "
                "时，也问这台收银机的打印机、钱箱、客显和颜色，存在店铺文件夹的 Config.ini "
                "里。data 文件夹没有就建立。"));
  const auto file = std::make_shared<DataFileOptions>();
  file->addTo(*command);
  command->callback([file, &console, tillSetup] { setUp(*file, console, tillSetup); });
}
