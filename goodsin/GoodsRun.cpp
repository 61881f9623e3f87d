#include "goodsin/GoodsRun.h"

#include <QEventLoop>
#include <QScopedValueRollback>
#include <QThread>
#include <QTimer>
#include <exception>
#include <memory>

#include "shop/GoodsImport.h"
#include "store/Connection.h"
#include "store/DataFile.h"

std::optional<GoodsPreview> GoodsRun::preview(const std::filesystem::path& file,
                                              const GoodsMapping& mapping, const Show& show) {
  return run(
      [&](const GoOn& goOn) {
        const auto connection = openDataFile(shop_);
        return previewGoods(*connection, *openGoodsSheet(file).reader, mapping, goOn);
      },
      show);
}

std::optional<GoodsPreview> GoodsRun::import(const std::filesystem::path& file,
                                             const GoodsMapping& mapping, const Show& show) {
  return run(
      [&](const GoOn& goOn) {
        const auto connection = openDataFile(shop_);
        connection->setUser(user_);
        return importGoods(*connection, *openGoodsSheet(file).reader, mapping,
                           WriteSlices::Company::kOthers, goOn);
      },
      show);
}

std::optional<GoodsPreview> GoodsRun::run(const Work& work, const Show& show) {
  constexpr int kShowMilliseconds = 100;
  std::atomic<double> done = 0;
  std::optional<GoodsPreview> result;
  std::exception_ptr failure;
  stopped_ = false;
  const auto goOn = [&](double part) {
    done = part;
    return !stopped_;
  };
  const std::unique_ptr<QThread> worker(QThread::create([&] {
    try {
      result = work(goOn);
    } catch (...) {
      failure = std::current_exception();
    }
  }));
  QEventLoop loop;
  QObject::connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit);
  QTimer shown;
  QObject::connect(&shown, &QTimer::timeout, &loop, [&] { show(done); });
  const QScopedValueRollback running(running_, true);
  shown.start(kShowMilliseconds);
  worker->start();
  loop.exec();
  worker->wait();
  if (failure) std::rethrow_exception(failure);
  return result;
}
