#pragma once

#include <QObject>
#include <QThread>
#include <atomic>
#include <memory>
#include <string>

#include "reports/SoldLines.h"

class Connection;
struct DataSource;

/// Runs sales queries beside the window, so that it lives while a year is sorted and read: a thread
/// with a reading connection of its own. Queries start, stop and report in the window's thread.
class LineQuery : public QObject {
  Q_OBJECT

 public:
  /// Reads the file of that connection by one of its own, which it opens at once, beside the
  /// window, so that it stands when the first query comes.
  explicit LineQuery(const Connection& shop);
  ~LineQuery() override;

  /// What is asked: the lines, and what their bills came to in these kinds of payment.
  struct Question {
    std::string lines;
    std::vector<const TenderKind*> kinds;
    std::string tenders;  ///< counts with kinds only
  };
  /// Starts a query; one that still runs is stopped.
  void start(const Question& question);
  /// Ends the query within milliseconds, in the midst of the engine's sorting too. Nothing more is
  /// heard of it.
  void stop();
  bool isRunning() const { return running_; }

 signals:
  /// The next lines, the first few as soon as they are known.
  void found(const SoldPage& page);
  /// All lines were given.
  void finished();
  /// The query ended early; the text is for people.
  void failed(const QString& why);

 private:
  Connection& connection();
  void read(const Question& question, int number);
  void readPages(const Question& question, int number);
  std::vector<TenderSum> readTenders(const Question& question);
  void report(int number, std::function<void()> what);
  void end();

  std::unique_ptr<const DataSource> source_;
  std::atomic<int> wanted_ = 0;  ///< number of the query that is still wanted
  bool running_ = false;

  // Used in the reading thread only.
  std::unique_ptr<Connection> connection_;
  QThread thread_;
  QObject* reader_;  ///< lives in the thread and goes with it
};
