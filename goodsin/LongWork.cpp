#include "goodsin/LongWork.h"

#include <QEventLoop>
#include <QScopedValueRollback>
#include <QThread>
#include <QTimer>
#include <exception>
#include <memory>

void LongWork::run(const Work& work, const Show& show) {
  constexpr int kShowMilliseconds = 100;
  std::atomic<double> done = 0;
  std::exception_ptr failure;
  const auto goOn = [&](double part) {
    done = part;
    return !stopped_;
  };
  const std::unique_ptr<QThread> worker(QThread::create([&] {
    try {
      work(goOn);
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
}
