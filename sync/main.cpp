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

/// The till that started this program, as its standard input tells: the till holds it open.
class StartingTill {
 public:
  explicit StartingTill(bool isThere) : input_(isThere ? STDIN_FILENO : -1) {}

  /// Waits so long, shorter when the till ends.
  void wait(SyncRun::Milliseconds patience) {
    pollfd input{isGone_ ? -1 : input_, 0, 0};
    if (poll(&input, 1, static_cast<int>(patience.count())) > 0) isGone_ = true;
  }
  bool isGone() const { return isGone_; }

 private:
  int input_;  ///< -1: nobody's end is waited for
  bool isGone_ = false;
};

int run(const Options& options) {
  const DataSource source = sourceOf(options);
  const SyncPlace place(source.path);
  if (!place.isMine()) return 0;
  StartingTill till(options.isWithTill);
  SyncRun sync(source, place,
               {.pause = [&](SyncRun::Milliseconds wait) { till.wait(wait); },
                .isTillGone =
                    [&] {
                      till.wait(SyncRun::Milliseconds(0));
                      return till.isGone();
                    },
                .tell = [](const std::string& what) { std::cerr << what << std::endl; }});
  sync.run();
  return 0;
}

int runCommandLine(int count, char** arguments) {
  Options options;
  CLI::App app("Brings what happens at a till to the shop's server.", "tillsync");
  app.set_version_flag("--version", std::string(tillVersion()));
  app.add_option("file", options.file, "the till's data file, or the shop's folder")->required();
  app.add_flag("--ask-file-password", options.readsPassword,
               "read the data file's password from the standard input");
  app.add_flag("--with-till", options.isWithTill,
               "end when the standard input does and everything is brought");
  CLI11_PARSE(app, count, arguments);
  return run(options);
}

}  // namespace

int main(int count, char** arguments) {
  try {
    return runCommandLine(count, arguments);
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
  }
}
