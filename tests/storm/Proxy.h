#pragma once

#include <atomic>
#include <string>
#include <thread>

/// Stands between tills and server as their network does: by a socket in a folder of its own, one
/// thread for each line.
class Proxy {
 public:
  enum class Weather {
    kFair,
    kCut,         ///< open lines break, and nobody answers
    kSwallow,     ///< lines open and take everything, and nothing arrives
    kLoseAnswer,  ///< questions arrive, and the line breaks before the answer does
    kSlow,        ///< each way takes 20 ms
  };

  /// `to` is the server's socket. Throws std::runtime_error.
  Proxy(const std::string& folder, int port, std::string to);
  ~Proxy();
  Proxy(const Proxy&) = delete;
  Proxy& operator=(const Proxy&) = delete;

  void set(Weather weather) { weather_ = weather; }

 private:
  void serve(const std::stop_token& over);
  void carry(int client, const std::stop_token& over);
  bool pass(int from, int to, bool isAnswer);

  std::string to_;
  int listener_;
  std::atomic<Weather> weather_ = Weather::kFair;
  std::jthread thread_;
};
