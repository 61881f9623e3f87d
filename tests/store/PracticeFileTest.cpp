#include "store/PracticeFile.h"

#include "StoreFixture.h"
#include "store/Transaction.h"

TEST(PracticeFileTest, ReadsTheGoodsOfAnEncryptedShopAndKeepsWhatIsWrittenToItself) {
  const TemporaryFolder folder;
  const DataSource source{folder.path() / "a%41?b#c.mdb", "p'w"};
  const auto shop = createDataFile(source);
  shop->runScript(
      "insert into tmda (sptm, spbm, ggxh) values ('1', '1', '80g');"
      "insert into stock values ('1', 5)");
  {
    const auto practice = practiceDataFile(*shop, folder.path());
    shop->runScript("insert into tmda (sptm, spbm, ggxh) values ('2', '2', '8g')");
    EXPECT_EQ(practice->Open("select * from tmda where ggxh like '%80%'").count(), 1U);
    EXPECT_EQ(practice->Open("select * from tmda").count(), 2U) << "as they are now";
    EXPECT_THAT([&] { practice->run("delete from tmda"); }, refusal("不能写入"));
    Transaction sale(*practice);
    practice->run("update stock set quantity = 4");
    sale.commit();
    for (const auto& left : std::filesystem::directory_iterator(folder.path()))
      EXPECT_THAT(left.path().filename().string(), testing::StartsWith("a%41?b#c.mdb"));
  }
  EXPECT_EQ(shop->Open("select * from stock where quantity = 5").count(), 1U);
  EXPECT_EQ(shop->fileFault(), "");
}
