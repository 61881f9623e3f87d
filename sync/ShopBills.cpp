#include "sync/ShopBills.h"

#include <cstdint>
#include <thread>

#include "sync/BillCalls.h"

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

constexpr auto kBetweenLooks = 50ms;

// Whatever was answered, even if it is a refusal.
const auto kAnswered = [](const auto& answer) {
  return answer.reply != BillAuthority::Reply::kNone;
};

}  // namespace

std::int64_t ShopBills::atServer() const {
  const std::optional<SyncState> last = line_.state();
  const std::optional<std::int64_t> known = last ? last->atServer : std::nullopt;
  return known.value_or(INT64_MAX);
}

BillAuthority::ReturnAnswer ShopBills::takeBack(const Return& wanted) {
  return line_.ask(
      [&wanted](ShopCalls& calls, LiveLine::Milliseconds patience) {
        return BillCalls(calls, patience).takeBack(wanted);
      },
      kAnswered);
}

BillAuthority::BillAnswer ShopBills::bill(std::int64_t number) {
  return line_.ask(
      [number](ShopCalls& calls, LiveLine::Milliseconds patience) {
        return BillCalls(calls, patience).bill(number);
      },
      kAnswered);
}

std::vector<BillAuthority::HeldBill> ShopBills::heldElsewhere() {
  return line_
      .ask(
          [](ShopCalls& calls, LiveLine::Milliseconds patience) {
            return BillCalls(calls, patience).heldElsewhere();
          },
          kAnswered)
      .bills;
}

BillAuthority::HandOver ShopBills::handOver(const std::string& key, int till, std::int64_t bill) {
  const auto deadline = steady_clock::now() + LiveLine::kPatience;
  for (;;) {
    const BillCalls::Wish wish = line_.ask(
        [&](ShopCalls& calls, LiveLine::Milliseconds patience) {
          return BillCalls(calls, patience).want(key, till, bill);
        },
        kAnswered, deadline);
    if (!wish.isWaiting) return {wish.reply, wish.basket};
    if (steady_clock::now() + kBetweenLooks >= deadline) return {};
    std::this_thread::sleep_for(kBetweenLooks);
  }
}
