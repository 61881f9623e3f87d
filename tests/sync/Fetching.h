#pragma once

#include "sync/Download.h"
#include "sync/ShopServerFixture.h"

struct FetchingFixture : ShopServerFixture {
  /// A till that fetches what is new, as tillsync does.
  struct Fetching {
    explicit Fetching(std::unique_ptr<Joined> joined_) : joined(std::move(joined_)) { connect(); }
    void connect() {
      joined->connect();
      download = std::make_unique<Download>(*joined->till.shop, *joined->line);
    }
    /// Uploads and fetches until there is no more; so many steps at most.
    void bring(int most = 2000) {
      joined->bring();
      EXPECT_EQ(joined->failures, 0) << joined->upload->fault();
      download->look();
      for (; most > 0; --most) {
        const Download::Outcome outcome = download->step(now += 2 * Download::kPause);
        if (outcome == Download::Outcome::kFailed) ADD_FAILURE() << download->fault();
        if (outcome != Download::Outcome::kMore) return;
      }
    }
    /// As a till does that passed over something, or that was killed before it kept its place.
    void compareAll() {
      till.shop->run("delete from down_place");
      connect();
      bring();
    }
    std::string figures(const std::string& card) {
      Rows row = till.shop->query("select total_spent, points from member where bh = ?", card);
      return row.next() ? row.text("total_spent") + " " + row.text("points") : "(no member)";
    }
    std::string price(const std::string& code) {
      Rows row = joined->till.shop->query("select xsdj from tmda where sptm = ?", code);
      return row.next() ? row.text("xsdj") : "(gone)";
    }

    std::unique_ptr<Joined> joined;
    SellingTill& till = joined->till;
    std::unique_ptr<Download> download;
    Download::Moment now = std::chrono::steady_clock::now();
  };
};
