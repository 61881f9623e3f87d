#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "link/ServerLine.h"
#include "takings/TakingsSource.h"

/// The highest number of a till at a server: at head office it carries its shop's, x 1000.
constexpr int kMostTillsOfChain = 2'000'999;

/// The bills of all tills at a shop's server, or of one of them, in the state that they are in when
/// this is made. It throws Failure, with the server's words.
class ServerTakings : public TakingsSource {
 public:
  /// Of all bills, only these.
  struct Part {
    std::optional<int> till = {};
    std::optional<std::int64_t> bill = {};  ///< by its number; returns are left out then
  };
  /// The line, logged in as the shop's owner, outlives this.
  ServerTakings(ServerLine& line, Part part);
  ~ServerTakings() override;
  ServerTakings(const ServerTakings&) = delete;
  ServerTakings& operator=(const ServerTakings&) = delete;

  [[nodiscard]] bool sold(const DateTime& from, const DateTime& until, const Taker& taker) override;
  void returned(const DateTime& from, const DateTime& until, const Taker& taker) override;
  [[nodiscard]] bool goods(const Taker& taker) override;
  std::string goodsName(const std::string& code) override;
  std::map<std::int64_t, std::string> operatorNames() override;
  std::string shopName() override;
  bool hasTills() const override { return true; }

 private:
  using Columns = std::vector<std::string>;
  struct Time {
    const char* column;
    DateTime from, until;
  };
  /// The rows of the view of that time, in the order of its columns.
  bool walk(const Columns& columns, const std::string& view, const Time& time,
            const std::string& order, const Taker& taker);
  bool walk(const Columns& columns, const std::string& query, const ServerAnswer::Row& values,
            const Taker& taker);

  ServerLine& line_;
  Part part_;
};
