#include "shop/GoodsImport.h"

#include <gmock/gmock.h>

#include <sstream>
#include <string>

#include "TemporaryFolder.h"
#include "shop/GoodsStage.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/FragmentIndex.h"

namespace {

constexpr WriteSlices::Company kOthers = WriteSlices::Company::kOthers;

struct GoodsImportTest : testing::Test {
  TemporaryFolder folder;
  std::unique_ptr<Connection> shop = createDataFile({folder.file("POS.mdb"), ""});

  void SetUp() override {
    shop->runScript(R"(
      insert into spda (f_spbm, f_spmc, f_sptm, f_xsdj, f_splbmc) values
        ('A', '面', '11', 4, '吃'), ('B', '糖', '12', 1, '吃');
      insert into tmda (sptm, spbm, spmc, xsdj, pfj, zk, dwbl) values
        ('11', 'A', '面', 4, 0, 0.9, 1), ('12', 'B', '糖', 1, 0, 1, 1), ('99', 'A', '箱', 40, 0, 1, 12);
      insert into stock values ('A', 7);
    )");
  }
  std::optional<GoodsPreview> run(
      const std::string& csv, bool writes, const GoOn& goOn = [](double) { return true; }) {
    std::istringstream text(csv);
    const OpenedSheet opened = readGoodsSheet(text);
    const GoodsMapping mapping = mappingFor(*shop, opened.headings);
    return writes ? importGoods(*shop, *opened.reader, mapping, kOthers, goOn)
                  : previewGoods(*shop, *opened.reader, mapping, goOn);
  }
  std::string value(const char* query) {
    Rows rows = shop->query(query);
    return rows.next() ? rows.text("v") : "(none)";
  }
  std::string goods() {
    return value(
        "select group_concat(sptm || spbm || spmc || xsdj || '*' || dwbl || '/' || zk, ' ') as v"
        " from (select * from tmda order by sptm)");
  }
};

std::string shown(const GoodsPreview& preview) {
  std::ostringstream text;
  for (const auto& each : preview.added)
    text << each.line << "+" << each.itemCode << each.name << each.newPrice << ' ';
  for (const auto& each : preview.changed) {
    text << each.line << "*" << each.itemCode << each.oldPrice << ">" << each.newPrice;
    for (const std::string& field : each.otherFields) text << "," << field;
    text << ' ';
  }
  for (const auto& each : preview.refused) text << each.line << "!" << each.reason << ' ';
  text << preview.unchangedCount;
  return text.str();
}

TEST_F(GoodsImportTest, ShowsWhatASheetWouldDoAndDoesIt) {
  const struct {
    const char* what;
    const char* sheet;
    const char* preview;
    const char* after;
  } cases[] = {
      {"by item code, the sheet has no barcodes", "商品编码,零售价\nA,4.5\nB,1\n", "2*A4.00>4.50 1",
       "11A面4.5*1/0.9 12B糖1*1/1 99A箱40*12/1"},
      {"by barcode, new and known", "条码,名称,零售价,库存\n11,面,4,7\n13,米,3,\n", "3+13米3.00 1",
       "11A面4*1/0.9 12B糖1*1/1 1313米3*1/1 99A箱40*12/1"},
      {"the case's barcode is not the article's price", "条码,零售价\n99,42\n11,4\n",
       "2*A40.00>42.00 1", "11A面4*1/0.9 12B糖1*1/1 99A箱42*12/1"},
      {"a further barcode, stock, a case",
       "商品编码,条码,名称,零售价,库存,箱条码,箱单位,每箱,箱价\n"
       "A,11,面,4,9,99,箱,12,41\nA,14,面,4,,,,,\nC,15,茶,2,5,98,箱,6,11\n",
       "4+C茶2.00 2*A>4.00,类别,箱价,箱单位,库存 3*A>4.00,条码 0",
       "11A面4*1/0.9 12B糖1*1/1 14A面4*1/1 15C茶2*1/1 98C茶 整箱11*6/1 99A箱41*12/1"},
  };
  for (const auto& [what, csv, preview, after] : cases) {
    const std::string before = goods();
    EXPECT_EQ(shown(run(csv, false).value()), preview) << what;
    EXPECT_EQ(goods(), before) << "a preview writes nothing";
    EXPECT_EQ(shown(run(csv, true).value()), preview) << what;
    EXPECT_EQ(goods(), after) << what;
    EXPECT_TRUE(run(csv, false)->changesNothing()) << what;
    EXPECT_TRUE(fragmentIndexIsRight(*shop));
    shop.reset();
    std::filesystem::remove(folder.file("POS.mdb"));
    shop = createDataFile({folder.file("POS.mdb"), ""});
    SetUp();
  }
}

TEST_F(GoodsImportTest, OneBadRowKeepsAllOut) {
  const std::pair<const char*, const char*> cases[] = {
      {"条码,零售价\n11,5\n12,abc\n", "3!“零售价”应是不小于 0 的金额"},
      {"条码,零售价\n11,5\n11,6\n", "3!与前面的一行"},
      {"条码,零售价\n11,5\n16,6\n", "3!是新的，但表里没有“名称”"},
      {"条码,零售价\n11,5\n6.99E+12,6\n", "3!“条码”应是编码"},
      {"条码,名称,箱条码\n11,x,\n16,y,17\n", "3!有箱条码，却没有"},
      {"条码,商品编码,名称\n11,A,x\n,,y\n", "3!商品编码和条码都空着"},
      {"条码,名称\n11,x\n12\n", "3!有 1 列，标题行有 2 列"},
  };
  const std::string before = goods();
  for (const auto& [csv, refusal] : cases) {
    const GoodsPreview preview = run(csv, true).value();
    EXPECT_FALSE(preview.mayBeWritten());
    EXPECT_THAT(shown(preview), testing::HasSubstr(refusal));
    EXPECT_EQ(goods() + value("select count(*) as v from tmda_in"), before + "0") << csv;
  }
}

// The rows of 5 000 articles come in by several slices. Wherever it is ended, a shop has none of
// them, or gets all; and a till rings meanwhile.
TEST_F(GoodsImportTest, IsAllOrNothingWhereverItIsEnded) {
  constexpr int kArticles = 5'000;
  std::string csv = "商品编码,条码,名称,规格,零售价\n";
  for (int item = 0; item < kArticles; ++item)
    csv.append("N")
        .append(std::to_string(item * 7919 % kArticles))
        .append(",3")
        .append(std::to_string(item))
        .append(",货,瓶装,2\n");
  const char* count = "select count(*) as v from tmda where spbm like 'N%'";
  struct Killed {};
  const auto until = [](double end) {
    return [end](double part) { return part >= end ? throw Killed() : true; };
  };
  EXPECT_THROW(static_cast<void>(run(csv, true, until(0.2))), Killed);
  EXPECT_EQ(goodsWaiting(*shop), 0);
  EXPECT_FALSE(run(csv, true, [](double) { return false; })) << "stopped while it was read";
  EXPECT_EQ(value(count), "0");

  const auto till = openDataFile({folder.file("POS.mdb"), ""});
  int rung = 0;
  EXPECT_THROW(
      static_cast<void>(run(csv, true,
                            [&](double part) {
                              if (part > 0.4) throw Killed();
                              rung +=
                                  till->run("update stock set quantity = quantity - 1") > 0 ? 1 : 0;
                              return true;
                            })),
      Killed);
  EXPECT_GT(rung, 3);
  EXPECT_GT(goodsWaiting(*shop), 0) << "it counts, and not all of it is there";
  shop = openDataFile({folder.file("POS.mdb"), ""});
  int slices = 0;
  finishGoods(*shop, kOthers, [&](double) { return ++slices < 3; });
  EXPECT_GT(goodsWaiting(*shop), 0) << "the next one was ended too";
  EXPECT_TRUE(run("条码,零售价\n11,4\n", true)->changesNothing());
  EXPECT_EQ(value(count), std::to_string(kArticles)) << "the next import goes on first";
  EXPECT_EQ(goodsWaiting(*shop), 0);
  EXPECT_EQ(value("select count(*) as v from spda where f_spbm like 'N%'"),
            std::to_string(kArticles));
  EXPECT_TRUE(fragmentIndexIsRight(*shop));
}

TEST_F(GoodsImportTest, GivesWayToALaterOne) {
  GoodsStage first(*shop, kOthers);
  const auto other = openDataFile({folder.file("POS.mdb"), ""});
  GoodsStage second(*other, kOthers);
  EXPECT_THROW(first.seal(), Refusal);
  second.seal();
}

TEST_F(GoodsImportTest, RemembersWhatSomebodysHeadingsMean) {
  const std::vector<std::string> headings = {"代号", "价", "单价"};
  GoodsMapping mapping = guessMapping(headings);
  mapping.choose(0, GoodsField::kItemCode);
  mapping.choose(1, GoodsField::kPrice);
  saveMapping(*shop, "批发部", mapping);
  for (const GoodsMapping& kept :
       {mappingFor(*shop, headings), namedMapping(*shop, " 批发部", {"价", "代号"})}) {
    EXPECT_EQ(kept.columns[*kept.placeOf(GoodsField::kPrice)].heading, "价");
  }
  EXPECT_THROW(namedMapping(*shop, "批发部", {"名称"}), Refusal);
  EXPECT_THROW(namedMapping(*shop, "没有", headings), Refusal);
  EXPECT_EQ(shown(run("代号,价,单价\nA,5,9\n", false).value()), "2*A4.00>5.00 0");
}

}  // namespace
