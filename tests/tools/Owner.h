#pragma once

#include <gmock/gmock.h>

#include <algorithm>
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

  /// Runs `tilladmin words...` and gives its exit code. The words are parted by blanks; "~" is a
  /// blank within one, "@" the shop's data file, "./name" a file of the folder.
  int run(const std::string& line) {
    std::vector<std::string> words = {"tilladmin"};
    std::istringstream parts(line);
    for (std::string word; parts >> word;) {
      std::ranges::replace(word, '~', ' ');
      words.push_back(word.starts_with("./") ? folder.file(word.substr(2)) : word);
    }
    for (std::string& word : words) {
      if (word != "@") continue;
      word = shop;
      words.insert(words.end(), {"--file-password", ""});
      break;
    }
    std::istringstream in(typed);
    std::ostringstream outText, errText;
    Console console{in, outText, errText, [this] { return now; }};
    std::vector<const char*> arguments;
    arguments.reserve(words.size());
    for (const std::string& word : words) arguments.push_back(word.c_str());
    const int code = runTool(static_cast<int>(arguments.size()), arguments.data(), console);
    out = outText.str();
    err = errText.str();
    return code;
  }
  /// Runs it, and it ends with that code and says that.
  void expect(int code, const std::string& said, const std::string& line) {
    EXPECT_EQ(run(line), code) << line << '\n' << out << err;
    EXPECT_THAT(out + err, testing::HasSubstr(said)) << line;
  }

  void write(const std::string& name, const std::string& text) const {
    std::ofstream(folder.file(name), std::ios::binary) << text;
  }
  std::unique_ptr<Connection> open() const { return openDataFile({shop, ""}); }
  /// The first column, "value", of a query's only row.
  std::string value(const std::string& query) const {
    const std::unique_ptr<Connection> connection = open();
    Rows rows = connection->query(query.c_str());
    return rows.next() ? rows.text("value") : "(no row)";
  }
  void execute(const std::string& statements) const { open()->runScript(statements); }
  /// A page of the data file goes bad on the disk.
  void scratchShop() const {
    std::fstream file(shop, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(std::streamoff{4096} * 3);
    file << "a scratch on the disk";
  }
};

/// With a new data file.
struct OwnerTest : testing::Test, Owner {
  OwnerTest() { expect(0, "", "create @"); }
};
