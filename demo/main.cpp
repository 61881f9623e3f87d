// Plays the demo day: demo_day <installed program folder> <out folder> [language of the screens]
#include <QCoreApplication>
#include <cstdio>
#include <exception>
#include <filesystem>

#include "demo/CheatEvidence.h"
#include "demo/DaySummary.h"
#include "demo/DemoDay.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (argc != 3 && argc != 4) {
    std::fprintf(stderr, "usage: demo_day <installed program folder> <out folder> [language]\n");
    return 2;
  }
  try {
    const std::filesystem::path out = std::filesystem::absolute(argv[2]);
    DemoDay day(argv[1], out, argc == 4 ? argv[3] : "");
    DaySummary summary(day.dataFile());
    day.morning();
    day.afternoon();
    day.evening();
    summary.compareExport(out / "sales.csv");
    day.lateShifts();
    day.writeTranscripts();
    const CheatEvidence evidence(day.shop(), day.cheats(), day.printed());
    summary.add(evidence.missing(out / "redated.mdb"));
    if (!summary.write(out / "summary.txt", day.settledBills())) {
      std::fprintf(stderr, "the books of the demo day do not agree: see %s\n",
                   (out / "summary.txt").c_str());
      return 1;
    }
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "the demo day stopped: %s\n", failure.what());
    return 1;
  }
}
