// Holds what a shop's server has against what its tills did, after kills and bad weather.
//   tests_storm [--keys | --forget | --restore] [--tills N] [--faults N | --long] [--seed N]
#include <sys/prctl.h>

#include <CLI/CLI.hpp>
#include <csignal>
#include <cstdio>
#include <exception>
#include <string>

#include "storm/KeyedDay.h"
#include "storm/SellingDay.h"
#include "storm/Storm.h"

namespace {

constexpr int kLong = 5000;

struct Options {
  bool byKeys = false, forgets = false, restores = false, isLong = false;
  int tills = 3, faults = 40;
  unsigned seed = 20261122;
};

/// All faults there are, of the server's disk too, which is put back from the middle.
void storm(Storm& storm, int faults) {
  for (int fault = 0; fault < faults; ++fault) {
    if (fault == faults / 2) storm.copyServer();
    if (fault == faults * 3 / 4) storm.putServerBack();
    storm.strike();
  }
}

/// A server that says it has what is not on its disk yet.
void forget(Storm& storm, int faults) {
  storm.letServerForget();
  for (int fault = 0; fault < faults; ++fault) {
    storm.strike();
    if (fault % 4 == 3) storm.forget();
  }
  if (storm.forgotten() == 0) throw std::runtime_error("the server forgot nothing");
}

/// A till's file and then the server's disk are put back from copies.
void restore(Storm& storm, int faults) {
  for (int fault = 0; fault < faults; ++fault) {
    if (fault == faults / 8) storm.copyTill();
    if (fault == faults * 3 / 8) storm.putTillBack();
    if (fault == faults / 2) storm.copyServer();
    storm.strike();
    if (fault != faults * 3 / 4) continue;
    storm.killServer();
    storm.putServerBack();
  }
}

void play(const Options& options) {
  Storm shop(options.tills, options.byKeys, options.seed);
  const int faults = options.isLong ? kLong : options.faults;
  const auto kind = options.forgets ? &forget : options.restores ? &restore : &storm;
  kind(shop, faults);
  shop.clearAndCompare();
  shop.print();
}

int run(int count, char** arguments) {
  Options options;
  CLI::App app("Holds what a shop's server has against what its tills did.");
  auto* byKeys = app.add_flag("--keys", options.byKeys, "installed tills, worked by keys");
  auto* forgets = app.add_flag("--forget", options.forgets, "the server forgets what it answered")
                      ->excludes(byKeys);
  app.add_flag("--restore", options.restores, "disks are put back from copies")
      ->excludes(byKeys)
      ->excludes(forgets);
  app.add_option("--tills", options.tills);
  app.add_option("--faults", options.faults);
  app.add_flag("--long", options.isLong);
  app.add_option("--seed", options.seed);
  CLI11_PARSE(app, count, arguments);
  play(options);
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    const std::string what = count == 5 ? arguments[1] : "";
    if (what == "--till" || what == "--keyed-till") {
      prctl(PR_SET_PDEATHSIG, SIGKILL);
      const auto day = what == "--till" ? &playSellingDay : &playKeyedDay;
      day(arguments[2], arguments[3], static_cast<unsigned>(std::stoul(arguments[4])));
    }
    return run(count, arguments);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "storm: %s\n", failure.what());
    return 1;
  }
}
