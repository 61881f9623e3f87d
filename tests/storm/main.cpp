// Holds what a shop's server has against what its tills did, after kills and bad weather.
//   tests_storm [--long | --faults N] [--seed N]
#include <cstdio>
#include <exception>
#include <string_view>

#include "ProofOptions.h"
#include "storm/Storm.h"
#include "storm/StormTill.h"

int main(int count, char** arguments) {
  try {
    if (count == 5 && std::string_view(arguments[1]) == "--till")
      playStormTill(arguments[2], arguments[3], static_cast<unsigned>(std::stoul(arguments[4])));
    const ProofOptions options = ProofOptions::parse(count, arguments, "--faults", 40, 5000);
    Storm storm(3, options.seed);
    for (int fault = 0; fault < options.count; ++fault) {
      if (fault == options.count / 2) storm.copyServer();
      if (fault == options.count * 3 / 4) storm.putServerBack();
      storm.strike();
    }
    storm.clearAndCompare();
    storm.print();
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "storm: %s\n", failure.what());
    return 1;
  }
}
