// bench [--folder=FOLDER] [options of the benchmark library]
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <string_view>

#include "bench/BenchFolder.h"

int main(int argc, char** argv) {
  constexpr std::string_view kFolder = "--folder=";
  int kept = 0;
  for (int i = 0; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument.starts_with(kFolder)) {
      benchRoot = std::filesystem::absolute(argument.substr(kFolder.size()));
    } else {
      argv[kept++] = argv[i];
    }
  }
  argc = kept;
  QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
