#pragma once

#include <chrono>
#include <filesystem>

#include "base/DateTime.h"
#include "saleslib/SyncState.h"
#include "sync/ShopCalls.h"
#include "sync/TillLine.h"

/// The till's own line to the shop's server, for what a cashier waits for. It stays open between
/// two questions.
class LiveLine {
 public:
  using Milliseconds = ServerLine::Milliseconds;
  using Moment = std::chrono::steady_clock::time_point;
  /// A cashier waits so long and no longer.
  static constexpr std::chrono::seconds kPatience{2};
  /// A server that tillsync has had no answer of for so long is away.
  static constexpr std::chrono::seconds kSilence{5};

  /// `dataFile` is where tillsync says beside which data file when the server last answered.
  LiveLine(const ShopLink& link, std::filesystem::path dataFile, Clock clock);

  bool isAway() const;
  /// What tillsync says; none when it never said anything.
  std::optional<SyncState> state() const;

  /// `question(calls, patience)` until it `isAnswered`, a second time when the line that the first
  /// found was broken long ago; nobody is asked while the server is away. Its answer, or one made
  /// of nothing.
  template <class Question, class IsAnswered>
  auto ask(const Question& question, const IsAnswered& isAnswered,
           Moment deadline = std::chrono::steady_clock::now() + kPatience)
      -> decltype(question(std::declval<ShopCalls&>(), Milliseconds())) {
    decltype(question(std::declval<ShopCalls&>(), Milliseconds())) answer{};
    if (isAway()) return answer;
    ShopCalls calls(server_.line(), till_);
    for (int attempt = 0; attempt < kAttempts && !isAnswered(answer); ++attempt) {
      const auto left =
          std::chrono::duration_cast<Milliseconds>(deadline - std::chrono::steady_clock::now());
      if (left.count() <= 0) break;
      answer = question(calls, left);
    }
    return answer;
  }

 private:
  static constexpr int kAttempts = 2;

  int till_;
  std::filesystem::path dataFile_;
  Clock clock_;
  TillLine server_;
};
