#include "bench/ServerBeside.h"

#include <stdexcept>
#include <thread>

#include "ShopJoining.h"
#include "store/Connection.h"

constexpr auto kPatience = std::chrono::seconds(60);
constexpr auto kBetweenLooks = std::chrono::milliseconds(10);

ServerBeside::ServerBeside()
    : network_(folder_.path().string(), server_.port(),
               server_.folder().string() + "/.s.PGSQL." + std::to_string(server_.port())) {
  ServerLine owner(server_.owner());
  ShopServer(owner).init("");
}

void ServerBeside::join(Connection& till) {
  joinThrowAwayShop(server_, till, 1, folder_.path().string());
}

LineParameters ServerBeside::till() {
  return tillParameters({.host = server_.folder().string(),
                         .port = server_.port(),
                         .database = "books",
                         .user = "till_1",
                         .password = "password"},
                        "");
}

void ServerBeside::await(Connection& till) {
  Rows last = till.query("select max(seq) as seq from fact");
  if (!last.next()) throw std::runtime_error("the till keeps no journal");
  const std::string seq = last.text("seq");
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  while (server_.value("select applied from shop.till") != seq) {
    if (std::chrono::steady_clock::now() > deadline)
      throw std::runtime_error("the server does not get what the till wrote");
    std::this_thread::sleep_for(kBetweenLooks);
  }
}
