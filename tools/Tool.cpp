#include "tools/Tool.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "base/Failure.h"
#include "base/Version.h"
#include "base/Words.h"
#include "tools/AutostartCommand.h"
#include "tools/BackupCommand.h"
#include "tools/BillCommand.h"
#include "tools/CheckCommand.h"
#include "tools/CreateCommand.h"
#include "tools/EnrolCommand.h"
#include "tools/ExportCommand.h"
#include "tools/ImportAccessCommand.h"
#include "tools/ImportCommand.h"
#include "tools/JournalCommand.h"
#include "tools/OperatorCommand.h"
#include "tools/ParamCommand.h"
#include "tools/ParserTexts.h"
#include "tools/ReportCommand.h"
#include "tools/RestoreCommand.h"
#include "tools/SetupCommand.h"
#include "tools/ShiftCommand.h"
#include "tools/ShopCommand.h"

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kNoCommandLine = 2;

// The words after the program's name, last one first as the parser wants them. "--password=" is an
// empty password, which the parser takes as an empty word of its own only.
std::vector<std::string> wordsOf(int count, const char* const* arguments) {
  std::vector<std::string> words;
  for (int index = 1; index < count; ++index) {
    const std::string_view word = arguments[index];
    if (word.starts_with("--") && word.ends_with('=')) {
      words.emplace_back(word.substr(0, word.size() - 1));
      words.emplace_back();
    } else {
      words.emplace_back(word);
    }
  }
  std::reverse(words.begin(), words.end());
  return words;
}

}  // namespace

int runTool(int count, const char* const* arguments, Console& console,
            const TillSetupOf& tillSetup) {
  CLI::App app(
      Words::tr(
          "店主的工具：建立数据文件，管理操作员和店铺参数，导入导出商品，检查账目，做经营报表。"),
      "tilladmin");
  speakChinese(app);
  app.set_version_flag("--version", std::string(tillVersion()), Words::tr("显示版本"));
  app.require_subcommand(1);
  int exitCode = kDone;
  addSetupCommand(app, console, tillSetup);
  addCreateCommand(app, console);
  addOperatorCommand(app, console);
  addParamCommand(app, console);
  addImportCommand(app, console, exitCode);
  addImportAccessCommand(app, console);
  addExportCommand(app, console);
  addBackupCommand(app, console);
  addRestoreCommand(app, console);
  addCheckCommand(app, console, exitCode);
  addBillCommand(app, console);
  addAutostartCommand(app, console);
  addReportCommand(app, console);
  addJournalCommand(app, console);
  addShiftCommand(app, console);
  addEnrolCommand(app, console);
  addShopCommand(app, console, exitCode);
  groupInChinese(app);
  try {
    app.parse(wordsOf(count, arguments));
    return exitCode;
  } catch (const CLI::Success& asked) {
    return app.exit(asked, console.out, console.err);
  } catch (const CLI::ParseError& error) {
    console.err << Words::tr("%1。用 tilladmin --help 或 tilladmin 命令 --help 看用法。",
                             inChinese(error))
                << '\n';
    return kNoCommandLine;
  } catch (const Failure& failure) {
    console.err << failure.what() << '\n';
    return kFailed;
  }
}
