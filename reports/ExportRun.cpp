#include "reports/ExportRun.h"

#include <QEventLoop>
#include <QThread>
#include <QTimer>
#include <exception>
#include <memory>

bool ExportRun::write(const std::filesystem::path& file, const ExportTable& table,
                      const std::function<void(std::size_t rows)>& show) {
  return run([&](const ExportProgress& goOn) { return exportList(file, table, goOn); }, show);
}

bool ExportRun::run(const Work& work, const std::function<void(std::size_t done)>& show) {
  constexpr int kShowMilliseconds = 100;
  std::atomic<std::size_t> done = 0;
  bool isWhole = false;
  std::exception_ptr failure;
  stopped_ = false;
  const auto goOn = [&](std::size_t soFar) {
    done = soFar;
    return !stopped_;
  };
  const std::unique_ptr<QThread> writer(QThread::create([&] {
    try {
      isWhole = work(goOn);
    } catch (...) {
      failure = std::current_exception();
    }
  }));
  QEventLoop loop;
  QObject::connect(writer.get(), &QThread::finished, &loop, &QEventLoop::quit);
  QTimer shown;
  QObject::connect(&shown, &QTimer::timeout, &loop, [&] { show(done); });
  running_ = true;
  shown.start(kShowMilliseconds);
  writer->start();
  loop.exec();
  writer->wait();
  running_ = false;
  if (failure) std::rethrow_exception(failure);
  return isWhole;
}
