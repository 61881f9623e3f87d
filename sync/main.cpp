// Brings what happens at a till to the shop's server. The till starts it and needs nothing of it.
#include <poll.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>
#include <string>

#include "base/Failure.h"
#include "base/Version.h"
#include "sync/SyncRun.h"

namespace {

struct Options {
  std::string file;
  bool readsPassword = false;
  bool isWithTill = false;
};

DataSource sourceOf(const Options& options) {
  std::filesystem::path file = options.file;
  if (std::filesystem::is_directory(file)) file /= "data/POS.mdb";
  DataSource source{file, kBuiltInPassword};
  if (options.readsPassword) {
    source.password.clear();
    std::getline(std::cin, source.password);
  }
  return source;
}

/// Waits for the end of the standard input, which the till holds open; without a till for nothing.
bool hasInputEnded(const Options& options, SyncRun::Milliseconds patience) {
  pollfd input{options.isWithTill ? STDIN_FILENO : -1, 0, 0};
  if (poll(&input, 1, static_cast<int>(patience.count())) <= 0) return false;
  return (input.revents & (POLLHUP | POLLERR)) != 0;
}

int run(const Options& options) {
  using namespace std::chrono_literals;
  const DataSource source = sourceOf(options);
  const SyncPlace place(source.path);
  if (!place.isMine()) return 0;
  bool isTillGone = false;
  SyncRun sync(
      source, place,
      {.pause =
           [&](SyncRun::Milliseconds wait) {
             if (isTillGone) {
               poll(nullptr, 0, static_cast<int>(wait.count()));
             } else {
               isTillGone = hasInputEnded(options, wait);
             }
           },
       .isTillGone = [&] { return isTillGone = isTillGone || hasInputEnded(options, 0ms); },
       .tell = [](const std::string& what) { std::cerr << what << std::endl; }});
  sync.run();
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  Options options;
  CLI::App app("Brings what happens at a till to the shop's server.", "tillsync");
  app.set_version_flag("--version", std::string(tillVersion()));
  app.add_option("file", options.file, "the till's data file, or the shop's folder")->required();
  app.add_flag("--ask-file-password", options.readsPassword,
               "read the data file's password from the standard input");
  app.add_flag("--with-till", options.isWithTill,
               "end when the standard input does and everything is brought");
  CLI11_PARSE(app, count, arguments);
  try {
    return run(options);
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
  }
}
