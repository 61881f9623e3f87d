#include "storm/KeyedDay.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string_view>
#include <thread>
#include <utility>

#include "base/NumberText.h"
#include "driver/TillDriver.h"
#include "kill/Goods.h"
#include "store/DataFile.h"
#include "storm/SellingDay.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMostHeld = 3;
constexpr unsigned kMostLines = 4;

Goods goodsOf(const std::string& folder) {
  return Goods(*openDataFile({fs::path(folder) / "data" / "POS.mdb", kBuiltInPassword}));
}

class KeyedDay {
 public:
  KeyedDay(const std::string& folder, int paper, unsigned seed)
      : goods_(goodsOf(folder)), random_(seed), paper_(paper), till_(folder) {
    till_.play(">frmMenu Return >frmLogin =1 =111");
    comeTo("frmSell");
    number_ = openBill();
  }

  void step() {
    const unsigned what = below(10);
    if (what == 0 && held_ == 0 && !sold_.empty()) return takeBack();
    ring();
    if (what < 3 && held_ < kMostHeld) return putAside();
    settle(what > 4);
    if (held_ > 0 && below(2) == 0) takeUp();
  }

 private:
  unsigned below(std::size_t limit) { return static_cast<unsigned>(random_() % limit); }

  /// Through whatever the till has to say, to a window.
  void comeTo(const std::string& window) {
    for (std::string shown; shown != window; till_.sync()) {
      shown = till_.activeWindow();
      if (shown == "frmMsg" || shown == "messageBox") till_.key("Return");
    }
  }
  /// The number that the sale screen shows.
  int openBill() {
    static constexpr std::string_view kCaption = "流水号：";
    const std::string title = till_.text("title1");
    const std::size_t at = title.find(kCaption);
    if (at == std::string::npos) throw std::runtime_error("no bill number in: " + title);
    return std::stoi(title.substr(at + kCaption.size()));
  }
  /// Another bill is open than before.
  void nextBill() {
    comeTo("frmSell");
    const int before = std::exchange(number_, openBill());
    if (number_ == before) throw std::runtime_error("the bill stays open");
  }

  void ring() {
    for (unsigned lines = 1 + below(kMostLines); lines > 0; --lines) {
      code_ = goods_.line(below(goods_.count()), "").code;
      till_.enter(code_);
      till_.sync();
    }
  }
  void putAside() {
    till_.play("F5");
    nextBill();
    ++held_;
  }
  void takeUp() {
    till_.play("F6 >frmRecord Return");
    nextBill();
    --held_;
    settle(false);
  }

  void settle(bool byCard) {
    till_.play("F1 >frmEndSell");
    const std::string due = till_.text("Money");
    if (byCard) {
      const auto& [card, known] = *std::next(goods_.cards().begin(), below(goods_.cards().size()));
      till_.play("@czk =" + card + " =" + known.password);
      while (till_.activeWindow() == "frmEndSell") till_.sync();
    }
    comeToEnd();
    showBill(paper_, number_, generalNumber(Currency::parse(due).value()));
    sold_ = std::to_string(number_);
    nextBill();
  }
  /// A card that is refused leaves the settlement as it was: then it is cash.
  void comeToEnd() {
    std::string shown = till_.activeWindow();
    for (; shown != "frmSell"; shown = till_.activeWindow()) {
      if (shown == "frmEndSell") {
        till_.play("@txtInMoney Return");
        while (till_.activeWindow() == "frmEndSell") till_.sync();
      } else if (!shown.empty()) {
        till_.play("Return");
      }
      till_.sync();
    }
  }

  // The further menu remembers its entry, which is the second one.
  void takeBack() {
    till_.play(std::string("Esc >frmMenu Menu ") + (std::exchange(hasMenu_, true) ? "" : "Down ") +
               "Return >frmUnSell =" + sold_ + " =" + code_ + " =1 Return");
    comeTo("frmUnSell");
    till_.play("Esc >frmMenu Return");
    comeTo("frmSell");
    number_ = openBill();
    sold_.clear();
  }

  Goods goods_;
  std::mt19937 random_;
  int paper_;
  TillDriver till_;
  int number_ = 0;
  std::size_t held_ = 0;
  std::string code_, sold_;  ///< of the line rung last; the number of the last bill, or nothing
  bool hasMenu_ = false;     ///< the further menu has been open
};

}  // namespace

void playKeyedDay(const std::string& folder, const std::string& shown, unsigned seed) try {
  KeyedDay day(folder, openShown(shown), seed);
  for (;;) {
    day.step();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
} catch (const std::exception& failure) {
  std::ofstream(shown + ".fault") << failure.what();
  throw;
}
