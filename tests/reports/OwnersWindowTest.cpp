#include <QTimer>

#include "ReportsFixture.h"
#include "reports/frmJournal.h"
#include "reports/frmReport.h"
#include "saleslib/Journal.h"

namespace {

using enum Qt::Key;

using frmReportTest = ReportsFixture;

TEST_F(frmReportTest, WritesThePeriodsReportToTheFolderUnlessItIsStopped) {
  Hands hands;
  settle(3, "2026-11-01 09:05:03", 1, "12.5");
  settle(4, "2026-10-31 10:00:00", 2, "99");
  constexpr const char* kStopped = "已停止，没有写文件";
  const auto file = pos.folder / "Exports/经营报表 2026-11-01 2026-11-22.html";
  hands.at("frmReport", [&](QWidget& form) {
    const auto state = [&form] {
      return form.findChild<QLabel*>("lblState")->text().remove(QChar(0x200B)).toStdString();
    };
    QTimer stop;
    stop.setSingleShot(true);
    stop.callOnTimeout([] { Hands::pressNow(Key_Escape); });
    // On a busy machine the report may be done before the key comes.
    for (int tries = 0; tries < 20 && state() != kStopped; ++tries) {
      remove(file);
      stop.start(0);
      Hands::pressNow(Key_Return);
      stop.stop();
    }
    EXPECT_EQ(state(), kStopped);
    EXPECT_FALSE(exists(file));
    Hands::pressNow(Key_Return);
    EXPECT_EQ(state(), "已写到 " + file.string());
    Hands::pressNow(Key_Escape);
  });
  frmReport(pos).exec();
  EXPECT_THAT(fileBytes(file.string()),
              testing::AllOf(testing::HasSubstr("<td>2026-11-01</td>"),
                             testing::Not(testing::HasSubstr("99.00</td>"))));
}

using frmJournalTest = ReportsFixture;

TEST_F(frmJournalTest, ShowsThePeriodsEntriesByOperatorAndKind) {
  Hands hands;
  setParameter("Journal", "1");
  now.date.day = 23;
  pos.journal().note(EntryKind::kDrawerOpened);
  setParameter("PointUnit", "7");
  pos.gOperator->Init(store, 2);
  pos.journal().note(EntryKind::kReprinted, "5");
  hands.at("frmJournal", [&](QWidget& form) {
    const auto found = [&form](const char* control, const QString& keys) {
      typeAt(form, control, keys + "\n");
      return rowsOf(form, "listEntries", {2, 3, 4, 5});
    };
    EXPECT_EQ(found("DtBegin", "11-23"),
              "张三 开钱箱   |张三 设店铺参数 PointUnit 10 改成 7 |李四 补打小票 5  |");
    EXPECT_EQ(found("cobOperator", "↓↓"), "张三 开钱箱   |张三 设店铺参数 PointUnit 10 改成 7 |");
    EXPECT_EQ(found("cobOperator", "↓"), "李四 补打小票 5  |");
    EXPECT_EQ(found("cobKind", "↓"), "");
    Hands::pressNow(Key_Escape);
  });
  frmJournal(pos).exec();
}

}  // namespace
