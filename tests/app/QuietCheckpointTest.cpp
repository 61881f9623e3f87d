#include "app/QuietCheckpoint.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>
#include <QWindow>
#include <functional>

#include "TemporaryFolder.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/Transaction.h"

namespace {

/// A window whose key writes.
struct Window : QWindow {
  explicit Window(std::function<void()> act) : act_(std::move(act)) {}
  void keyPressEvent(QKeyEvent*) override { act_(); }
  std::function<void()> act_;
};

TEST(QuietCheckpointTest, CopiesTheLogBetweenKeysAndNeverWithinOne) {
  const TemporaryFolder folder;
  const auto books = createDataFile({folder.file("pos.mdb"), kBuiltInPassword});
  auto write = [&books, item = 'a'](int pages) mutable {
    Transaction writing(*books);
    books->run("insert into stock values (?, 1)", std::string(std::size_t(pages) * 4096, item++));
    writing.commit();
  };
  books->checkpoint();
  int written = 0, within = 0;
  Window window([&] {
    write(written);
    within = books->logPages();
  });
  const QuietCheckpoint quiet(qApp, *books);
  const auto press = [&](int pages) {
    written = pages;
    QTest::keyPress(&window, Qt::Key_Return);
    EXPECT_GE(within, pages) << "the key waited for the copy";
  };
  press(1);
  press(1'000);
  press(1);
  EXPECT_GT(books->logPages(), 1'000) << "the next key came too soon";
  EXPECT_TRUE(QTest::qWaitFor([&] { return books->logPages() == 0; }));
  press(5'000);
  press(1);
  QCoreApplication::processEvents();
  EXPECT_EQ(books->logPages(), 0) << "a long log waits for no pause";
}

}  // namespace
