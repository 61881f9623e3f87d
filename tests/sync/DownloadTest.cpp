#include "server/Publishing.h"
#include "store/FragmentIndex.h"
#include "sync/Download.h"
#include "sync/ShopServerFixture.h"

using testing::HasSubstr;

struct DownloadTest : ShopServerFixture {
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
      download->look();
      for (; most > 0; --most) {
        const Download::Outcome outcome = download->step(now += Download::kPause);
        if (outcome == Download::Outcome::kFailed) ADD_FAILURE() << download->fault();
        if (outcome != Download::Outcome::kMore) return;
      }
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

  DownloadTest() : office(createDataFile({folder.file("office"), ""}, [](Connection&) {})) {
    change("insert into operators (id, name, code, password) values (1, '张三', '1', 'hash')");
    change("insert into operator_rights values (1, 'sell')");
  }
  void change(const char* statement) { office->run(statement); }
  void addGoods(int from, int upTo) {
    office->run(
        "with recursive n (i) as (select ? union all select i + 1 from n where i < ?)"
        " insert into spda (f_spbm, f_spmc, f_Ggxh, f_xsdj) select 'K' || i, '茶' || i, '大包', 1.5"
        " from n",
        from, upTo);
    office->run(
        "insert into tmda (sptm, spbm, spmc, ggxh, xsdj) select '69' || f_spbm, f_spbm, f_spmc,"
        " f_Ggxh, f_xsdj from spda where f_spbm not in (select spbm from tmda)");
  }
  Published publishAll() {
    owner->close();
    return publish(*owner, *office, [](std::int64_t) {});
  }
  static std::string goods(Fetching& till) {
    return till.till.value("select count(*) as value from tmda");
  }
  static void expectIndexed(Fetching& till) {
    updateFragmentIndex(*till.till.shop);
    EXPECT_TRUE(fragmentIndexIsRight(*till.till.shop));
  }

  std::unique_ptr<Connection> office;
};

TEST_F(DownloadTest, BringsWhatTheOfficePublished) {
  Fetching till(join(1, "till"));
  addGoods(1, 1200);
  const Published first = publishAll();
  EXPECT_EQ(first.added, 2402);
  till.bring();
  EXPECT_EQ(goods(till), "1200");
  EXPECT_EQ(till.price("69K7"), "1.5");
  change("update tmda set xsdj = 2.25 where sptm = '69K7'");
  change("delete from tmda where sptm = '69K8'");
  change("insert into sys_param values ('ShopName', '小店'), ('Journal', '0')");
  const Published second = publishAll();
  EXPECT_EQ(std::to_string(second.added) + std::to_string(second.changed) +
                std::to_string(second.removed),
            "111");
  till.bring();
  EXPECT_EQ(till.price("69K7"), "2.25");
  EXPECT_EQ(till.price("69k8"), "(gone)");
  EXPECT_EQ(till.till.value("select value from sys_param where name = 'ShopName'"), "小店");
  EXPECT_EQ(till.till.value("select value from sys_param where name = 'Journal'"), "1");
  EXPECT_EQ(publishAll().changed, 0);
  expectIndexed(till);
}
