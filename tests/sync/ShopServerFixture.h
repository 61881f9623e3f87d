#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "SellingTill.h"
#include "ShopJoining.h"
#include "TemporaryFolder.h"
#include "sync/Upload.h"

/// A shop with a real server, empty at each test, and tills that join it.
class ShopServerFixture : public testing::Test {
 protected:
  static void SetUpTestSuite() { server_ = std::make_unique<ThrowAwayServer>(); }
  static void TearDownTestSuite() { server_.reset(); }

  ShopServerFixture() {
    server_->makeEmpty();
    owner = std::make_unique<ServerLine>(server_->owner());
    EXPECT_GT(shop().init(""), 0);
    EXPECT_EQ(shop().init(""), 0) << "a step is taken once";
  }

  ShopServer shop() {
    owner->close();  // the server may have been put back meanwhile
    return ShopServer(*owner);
  }
  static std::string value(const std::string& statement) { return server_->value(statement); }

  static ServerAddress address(int till, const std::string& password) {
    return {.host = server_->folder().string(),
            .port = server_->port(),
            .database = "books",
            .user = "till_" + std::to_string(till),
            .password = password};
  }

  /// A till whose line and upload are made anew when they are asked for anew, as after a kill.
  struct Joined {
    Joined(const std::filesystem::path& file, int till_) : till(file), number(till_) {}
    void connect() {
      upload.reset();
      line = std::make_unique<ServerLine>(tillParameters(address(number, "password"), ""));
      upload = std::make_unique<Upload>(*till.shop, *line);
    }
    /// Until nothing is to be brought any more; how many questions that took. `later` is how long
    /// the till was idle before.
    int bring(std::chrono::seconds later = std::chrono::seconds(0)) {
      now += later;
      for (int asked = 0; asked < 50; ++asked, now += std::chrono::milliseconds(1)) {
        const Upload::Outcome outcome = upload->step(now);
        if (outcome == Upload::Outcome::kIdle) return asked;
        if (outcome == Upload::Outcome::kRefused) return -1;
        if (outcome == Upload::Outcome::kFailed) ++failures;
      }
      return 50;
    }

    SellingTill till;
    int number, failures = 0;
    Upload::Moment now = std::chrono::steady_clock::now();
    std::unique_ptr<ServerLine> line;
    std::unique_ptr<Upload> upload;
  };
  std::unique_ptr<Joined> join(int number, const std::string& file, bool again = false) {
    auto joined = std::make_unique<Joined>(folder.file(file), number);
    joinThrowAwayShop(*server_, *joined->till.shop, number, server_->folder().string(), again);
    joined->connect();
    return joined;
  }

  static std::string stock() {
    return value("select trim_scale(quantity) from shop.stock where item = 'b'");
  }
  static std::string balance(const std::string& card) {
    return value("select trim_scale(balance) from shop.card_balance where number = '" + card + "'");
  }
  /// How often the server has that bill of any till.
  static std::string bills(int number) {
    return value("select count(*) from shop.sale where bill = " + std::to_string(number));
  }
  void expectSound() {
    const ShopServer::Checked found = shop().check(false);
    EXPECT_THAT(found.faults, testing::IsEmpty());
    EXPECT_GT(found.facts, 0);
  }

  TemporaryFolder folder;
  std::unique_ptr<ServerLine> owner;
  static inline std::unique_ptr<ThrowAwayServer> server_;
};
