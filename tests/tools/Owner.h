#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "TemporaryFolder.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "tools/Tool.h"

/// An owner at the command line, with a folder, a day and a data file named `shop`. That file has
/// no password, which saves deriving a key from it at every opening.
struct Owner {
  TemporaryFolder folder;
  std::string shop = folder.file("POS.mdb");
  DateTime now{{2026, 11, 22}, 9, 5, 3};
  std::string typed;     ///< what waits on the standard input
  std::string out, err;  ///< what the last command printed

  /// Runs `tilladmin words...` and gives its exit code.
  int run(std::vector<std::string> words) {
    if (std::find(words.begin(), words.end(), shop) != words.end()) {
      words.insert(words.end(), {"--file-password", ""});
    }
    std::istringstream in(typed);
    std::ostringstream outText, errText;
    Console console{in, outText, errText, [this] { return now; }};
    std::vector<const char*> arguments = {"tilladmin"};
    for (const std::string& word : words) arguments.push_back(word.c_str());
    const int code = runTool(static_cast<int>(arguments.size()), arguments.data(), console);
    out = outText.str();
    err = errText.str();
    return code;
  }

  /// Writes `text` to a file and imports it.
  int import(const std::string& table, const std::string& text) {
    const std::string csv = folder.file("import.csv");
    std::ofstream(csv, std::ios::binary) << text;
    return run({"import", shop, "--table", table, csv});
  }

  std::unique_ptr<Connection> open() const { return openDataFile({shop, ""}); }

  /// The first column, "value", of a query's only row.
  std::string value(const std::string& query) const {
    const std::unique_ptr<Connection> connection = open();
    Rows rows = connection->query(query.c_str());
    return rows.next() ? rows.text("value") : "(no row)";
  }

  /// A page of the data file goes bad on the disk.
  void scratchShop() const {
    std::fstream file(shop, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(4096 * 3);
    file << "a scratch on the disk";
  }
  void execute(const char* statement) const { open()->run(statement); }
};
