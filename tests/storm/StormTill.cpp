#include "storm/StormTill.h"

#include <fcntl.h>
#include <unistd.h>

#include <fstream>
#include <random>
#include <stdexcept>
#include <thread>

#include "SellingTill.h"

namespace {

const char* const kCards[] = {"8001", "8002"};

}  // namespace

void playStormTill(const std::string& file, const std::string& shown, unsigned seed) {
  const int paper = open(shown.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
  std::mt19937 random(seed);
  SellingTill till(file);
  till.begin();
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
      const std::string line = std::to_string(number) + " " + due + "\n";
      ensure(write(paper, line.data(), line.size()) > 0, "the customer sees it");
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
