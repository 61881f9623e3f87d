#pragma once

#include <array>
#include <fstream>
#include <iterator>
#include <sstream>

#include "sync/Fetching.h"

/// Two shops and their head office, each with a server of its own. What is asked is asked at the
/// server that was entered last; head office is number 0. What the handbook's page has its reader
/// type there is read from it.
struct ChainFixture : FetchingFixture {
  static constexpr int kHead = 0;

  static void SetUpTestSuite() {
    for (int at = kHead; at < 3; ++at) {
      server_ = std::make_unique<ThrowAwayServer>();
      server_->stop();
      server_->set("wal_level = logical");
      server_->set("wal_retrieve_retry_interval = '200ms'");
      server_->allow("local all head_office,shop_1,shop_2 scram-sha-256");
      server_->start();
      servers_.at(static_cast<std::size_t>(at)) = std::move(server_);
    }
    server_ = std::move(servers_[kHead]);
  }
  static void TearDownTestSuite() {
    server_.reset();
    servers_ = {};
  }

  ChainFixture() {
    for (const int number : {1, 2}) {
      type("select shop.add_shop", number);
      enter(number);
      server_->makeEmpty();
      owner = std::make_unique<ServerLine>(server_->owner());
      EXPECT_GT(shop().init(""), 0);
      type("select shop.join_chain", number);
      type("select shop.share_cards", number);
      enter(kHead);
      value("set client_min_messages = warning");
      type("create subscription", number);
      type("select shop.fill", number);
    }
  }

  static void replaceAll(std::string& text, const std::string& what, const std::string& by) {
    for (std::size_t at = text.find(what); at != std::string::npos;
         at = text.find(what, at + by.size()))
      text.replace(at, what.size(), by);
  }

  /// The page's statement that begins so, as it is for that shop and with the ways of here.
  static void type(const std::string& beginning, int shop) {
    std::ifstream file(CHAIN_PAGE);
    const std::string page(std::istreambuf_iterator<char>(file), {});
    const std::size_t place = page.find("--command=\"" + beginning);
    ASSERT_NE(place, std::string::npos) << "the page has no " << beginning;
    const std::size_t begin = page.find('"', place) + 1;
    std::istringstream statement(page.substr(begin, page.find('"', begin) - begin));
    std::string text;
    for (std::string word; statement >> word;) text += (text.empty() ? "" : " ") + word;
    const std::string number = std::to_string(shop);
    replaceAll(text, "shop_1", "shop_" + number);
    replaceAll(text, "(1,", "(" + number + ",");
    replaceAll(text, "(1)", "(" + number + ")");
    if (const std::size_t tls = text.find("sslmode="); tls != std::string::npos)
      text.erase(tls, text.find_first_of("' ", text.find("sslrootcert=")) - tls);
    replaceAll(text, "host=10.0.0.10 dbname=till", way(kHead));
    replaceAll(text, "host=10.0.1.10 dbname=till", way(shop));
    value(text);
  }

  void enter(int number) {
    std::swap(server_, servers_.at(static_cast<std::size_t>(at_)));
    std::swap(server_, servers_.at(static_cast<std::size_t>(number)));
    at_ = number;
    owner = std::make_unique<ServerLine>(server_->owner());
  }
  static std::string way(int number) {
    const auto& away = servers_.at(static_cast<std::size_t>(number));
    const ThrowAwayServer& server = away ? *away : *server_;
    return "host=" + server.folder().string() + " port=" + std::to_string(server.port()) +
           " dbname=books";
  }
  /// What head office says to that in the end.
  static std::string soon(const std::string& statement, const std::string& expected) {
    const auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    std::string said;
    do said = value(statement);
    while (said != expected && std::chrono::steady_clock::now() < patience);
    return said;
  }

  static inline std::array<std::unique_ptr<ThrowAwayServer>, 3> servers_;
  int at_ = kHead;
};
