// bench [--full] [--judge] [--folder=FOLDER] [options of the benchmark library]
#include <benchmark/benchmark.h>

#include <QApplication>
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string_view>
#include <vector>

#include "bench/Run.h"
#include "driver/OffscreenScreen.h"
#include "shell/FocusReturn.h"
#include "shell/HeldKeys.h"
#include "shell/ScreenFit.h"
#include "shell/Style.h"

namespace {

struct Options {
  bool full = false;
  bool judge = false;
  std::filesystem::path folder = "bench-cache";
};

/// Takes our own options out of the arguments; the rest is the benchmark library's.
Options take(std::vector<char*>& arguments) {
  constexpr std::string_view kFolder = "--folder=";
  Options options;
  std::erase_if(arguments, [&](const std::string_view argument) {
    if (argument == "--full") return options.full = true;
    if (argument == "--judge") return options.judge = true;
    if (!argument.starts_with(kFolder)) return false;
    options.folder = argument.substr(kFolder.size());
    return true;
  });
  options.folder = std::filesystem::absolute(options.folder);
  return options;
}

int report(const Table& table, bool judge) {
  std::cout << '\n';
  table.print(std::cout);
  const int missed = table.missed();
  std::cout << '\n'
            << (missed == 0 ? "every limit is met" : std::to_string(missed) + " rows fall short")
            << std::endl;
  return judge && missed > 0 ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<char*> arguments(argv, argv + argc);
  const Options options = take(arguments);
  int count = static_cast<int>(arguments.size());
  arguments.push_back(nullptr);
  std::filesystem::create_directories(options.folder);
  setenv("QT_QPA_PLATFORM", offscreenPlatform(options.folder, 1024, 768).c_str(), 1);
  QApplication application(count, arguments.data());
  application.setQuitOnLastWindowClosed(false);
  applyStyle(application);
  new FocusReturn(&application);
  new HeldKeys(&application);
  new ScreenFit(&application);
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;
  Run run{options.full, Shops(options.folder), {}};
  addLookUpRows(run);
  addSaleRows(run);
  addJournalRows(run);
  addShopRows(run);
  addDownRows(run);
  addWindowRows(run);
  addReportRows(run);
  addImportRow(run);
  // Last: their bills are of today, and the other rows' tills begin on an earlier day.
  addProgramRows(run);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return report(run.table, options.judge);
}
