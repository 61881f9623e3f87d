#include "storm/SellingDay.h"

#include <fcntl.h>
#include <unistd.h>

#include <fstream>
#include <random>
#include <stdexcept>
#include <thread>

#include "SellingTill.h"
#include "sync/ShopCards.h"

namespace {

const char* const kCards[] = {"8001", "8002"};

/// A till that has begun its day, whose cards the server decides about.
struct LiveTill {
  explicit LiveTill(const std::string& file, const std::string& password = {})
      : till(file, password), cards(shopLink(*till.shop).value(), file, localTime) {
    till.cards = &cards;
    till.begin();
  }
  SellingTill till;
  ShopCards cards;
};

}  // namespace

void beginSellingDay(const std::string& file, const std::string& password) {
  LiveTill begun(file, password);
}

int openShown(const std::string& shown) {
  return open(shown.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
}

void showBill(int paper, int number, const std::string& due) {
  const std::string line = std::to_string(number) + " " + due + "\n";
  if (write(paper, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
    throw std::runtime_error("the customer sees nothing");
}

void playSellingDay(const std::string& file, const std::string& shown, unsigned seed) {
  const int paper = openShown(shown);
  std::mt19937 random(seed);
  LiveTill live(file);
  SellingTill& till = live.till;
  int last = 0;
  for (;;) {
    const auto what = random() % 10;
    if (what == 0 && last != 0) {
      till.takeBack(last, 0.5);
    } else if (what == 1) {
      till.topUp(kCards[random() % 2], 5);
    } else {
      const double quantity = 0.25 * static_cast<double>(1 + random() % 8);
      const auto [number, due] = till.sell(quantity, what < 5 ? kCards[random() % 2] : "");
      showBill(paper, number, due);
      last = number;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(random() % 20));
  }
}

// A kill may cut the last line short; then nobody was shown it.
std::map<int, std::string> shownBills(const std::string& shown) {
  std::map<int, std::string> bills;
  std::ifstream paper(shown);
  for (std::string line; std::getline(paper, line) && !paper.eof();) {
    const std::size_t blank = line.find(' ');
    const int number = std::stoi(line);
    if (!bills.emplace(number, line.substr(blank + 1)).second)
      throw std::runtime_error("a number was shown twice: " + line);
  }
  return bills;
}
