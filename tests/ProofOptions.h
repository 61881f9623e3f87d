#pragma once

#include <cstring>
#include <stdexcept>
#include <string>

/// How much of its work a program that tries to lose something does.
struct ProofOptions {
  int count = 0;
  unsigned seed = 20261122;

  /// Reads [--long | COUNTED N] [--seed N]; without them the count is the usual one, with --long
  /// that of a run that nobody waits for. Throws std::runtime_error.
  static ProofOptions parse(int argc, char** argv, const char* counted, int usual, int many) {
    ProofOptions options{usual};
    for (int i = 1; i < argc; ++i) {
      const auto isNumber = [&](const char* name) {
        return std::strcmp(argv[i], name) == 0 && i + 1 < argc;
      };
      if (std::strcmp(argv[i], "--long") == 0) {
        options.count = many;
      } else if (isNumber(counted)) {
        options.count = std::stoi(argv[++i]);
      } else if (isNumber("--seed")) {
        options.seed = static_cast<unsigned>(std::stoul(argv[++i]));
      } else {
        throw std::runtime_error(std::string("unknown option ") + argv[i]);
      }
    }
    return options;
  }
};
