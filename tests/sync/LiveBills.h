#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "saleslib/SyncState.h"
#include "sync/ShopBills.h"
#include "sync/ShopServerFixture.h"
#include "sync/SyncRun.h"
#include "sync/TillErrands.h"

/// The shop's server behind something that happens to a question.
struct TroubledBills : BillAuthority {
  explicit TroubledBills(BillAuthority& server_) : server(server_) {}
  bool isAway() const override { return server.isAway(); }
  std::int64_t atServer() const override { return server.atServer(); }
  ReturnAnswer takeBack(const Return& wanted) override {
    asked = wanted;
    return trouble();
  }
  BillAnswer bill(std::int64_t number) override { return server.bill(number); }
  std::vector<HeldBill> heldElsewhere() override { return server.heldElsewhere(); }
  HandOver handOver(const std::string& key, int till, std::int64_t bill) override {
    return server.handOver(key, till, bill);
  }
  ReturnAnswer pass() { return server.takeBack(asked); }

  BillAuthority& server;
  Return asked;
  std::function<ReturnAnswer()> trouble = [this] { return pass(); };
};

struct LiveBills : ShopServerFixture {
  /// A till of the shop that the server decides about returns and held bills for, with what is
  /// done beside it.
  struct LiveTill {
    explicit LiveTill(std::unique_ptr<Joined> joined_)
        : joined(std::move(joined_)),
          server(shopLink(*joined->till.shop).value(), file(), localTime) {
      till.bills = &way;
      errand();
    }
    std::filesystem::path file() const { return joined->till.shop->source().path; }
    /// What tillsync does, until there is nothing to do.
    void errand() {
      TillErrands errands(*till.shop, *joined->line, joined->number);
      do {
        joined->bring();
        joined->now += TillErrands::kHeartbeat;
      } while (errands.step(joined->now));
    }
    /// Until all is brought.
    void runSync(Clock clock) const {
      const SyncPlace place(file());
      SyncRun(till.shop->source(), place,
              {.pause = [](auto) {},
               .isTillGone = [] { return true; },
               .tell = [](auto&) {},
               .clock = std::move(clock)})
          .run();
    }
    void lose(bool isLost) const {
      const DateTime contact = isLost ? DateTime{Date{2026, 1, 1}} : localTime();
      const std::string known =
          value("select applied from shop.till where till = " + std::to_string(joined->number));
      SyncPlace(file()).write({.contact = contact, .atServer = std::stoll(known)});
    }
    std::string count(const std::string& rows) const {
      return till.value(("select count(*) as value from " + rows).c_str());
    }

    std::unique_ptr<Joined> joined;
    SellingTill& till = joined->till;
    ShopBills server;
    TroubledBills way{server};
  };
};
