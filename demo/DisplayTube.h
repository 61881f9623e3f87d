#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

/// The customer display's end of a serial line: a pseudo terminal that keeps what the till sends.
class DisplayTube {
 public:
  DisplayTube();
  ~DisplayTube();
  DisplayTube(const DisplayTube&) = delete;
  DisplayTube& operator=(const DisplayTube&) = delete;

  /// The path that the till opens.
  const std::string& path() const { return path_; }
  /// What was shown so far, one text per figure: "price 12.50", "total 37.00", "drawer".
  std::vector<std::string> shown() const;

 private:
  void listen();

  int master_ = -1;
  int slave_ = -1;  ///< held open, so that the line survives the till's closing it
  std::string path_;
  mutable std::mutex mutex_;
  std::string bytes_;
  std::atomic<bool> stop_ = false;
  std::thread listener_;
};
