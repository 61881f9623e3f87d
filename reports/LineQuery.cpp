#include "reports/LineQuery.h"

#include <cmath>
#include <utility>

#include "base/Failure.h"
#include "platform/QtText.h"
#include "store/Connection.h"

namespace {

/// About a screen's height, to be seen at once; then as many as cost the window little at a time.
constexpr std::size_t kFirstPage = 64;
constexpr std::size_t kPage = 16384;

constexpr double kLargestSum = 9e14;  ///< about what fits an amount

}  // namespace

LineQuery::LineQuery(const Connection& shop)
    : source_(std::make_unique<DataSource>(shop.source())), reader_(new QObject) {
  reader_->moveToThread(&thread_);
  connect(&thread_, &QThread::finished, reader_, &QObject::deleteLater);
  thread_.start();
  QMetaObject::invokeMethod(reader_, [this] {
    try {
      connection();
    } catch (const Failure&) {
      // The first query opens again, and tells.
    }
  });
}

LineQuery::~LineQuery() {
  stop();
  QMetaObject::invokeMethod(reader_, [this] { connection_.reset(); });
  QMetaObject::invokeMethod(reader_, [this] { thread_.quit(); });
  thread_.wait();
}

void LineQuery::start(const Question& question) {
  const int number = ++wanted_;
  running_ = true;
  QMetaObject::invokeMethod(reader_, [this, question, number] { read(question, number); });
}

void LineQuery::stop() {
  ++wanted_;
  end();
}

void LineQuery::end() {
  running_ = false;
}

Connection& LineQuery::connection() {
  if (!connection_) {
    connection_ = std::make_unique<Connection>(*source_, Connection::Mode::kExisting);
  }
  return *connection_;
}

void LineQuery::read(const Question& question, int number) {
  if (wanted_ != number) return;
  try {
    readPages(question, number);
    report(number, [this] {
      end();
      emit finished();
    });
  } catch (const Failure& failure) {
    report(number, [this, why = qtText(failure.what())] {
      end();
      emit failed(why);
    });
  }
}

void LineQuery::readPages(const Question& question, int number) {
  const auto unwanted = [this, number] { return wanted_ != number; };
  connection().stopWhen(unwanted);
  Rows rows = connection().Read(question.lines);
  SoldLineCollector lines;
  std::size_t wantedSize = kFirstPage;
  const auto give = [&](std::vector<TenderSum> tenders = {}) {
    SoldPage page = lines.page();
    page.tenders = std::move(tenders);
    report(number, [this, page = std::move(page)] { emit found(page); });
  };
  while (rows.next()) {
    lines.take(rows);
    if (lines.size() < wantedSize) continue;
    if (unwanted()) return;
    give();
    wantedSize = kPage;
  }
  give(readTenders(question));
}

std::vector<TenderSum> LineQuery::readTenders(const Question& question) {
  std::vector<TenderSum> sums;
  if (question.kinds.empty()) return sums;
  Rows row = connection().Read(question.tenders);
  row.next();
  for (const TenderKind* kind : question.kinds) {
    const double sum = row.number(kind->column).value_or(0);
    const bool fits = std::abs(sum) < kLargestSum;
    sums.push_back(
        {kind, fits ? row.currency(kind->column).value_or(Currency()) : std::optional<Currency>()});
  }
  return sums;
}

// What is on its way when its query is stopped arrives unwanted.
void LineQuery::report(int number, std::function<void()> what) {
  QMetaObject::invokeMethod(
      this,
      [this, number, what = std::move(what)] {
        if (wanted_ == number) what();
      },
      Qt::QueuedConnection);
}
