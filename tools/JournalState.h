#pragma once

#include <cstdint>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

#include "base/Currency.h"

struct JournalEntry;

/// What the books must be by the journal's entries since it was last begun. Holds some bytes for
/// each bill and item, and the records of members, returns and top-ups.
class JournalState {
 public:
  using Json = nlohmann::json;

  /// What sales and top-ups change of a member.
  struct Account {
    Currency card, spent;
    std::int64_t points = 0;
    bool operator==(const Account&) const = default;
  };
  /// Bills that were settled before the journal began, which have one mark together.
  struct OlderBills {
    std::int64_t first = 0, last = 0, count = 0;
    std::string mark;
  };

  /// The next entry, with its body. Throws nlohmann::json::exception or Failure for a body that is
  /// not what its kind has.
  void take(const JournalEntry& entry, const Json& body);

  bool isBegun = false;                      ///< and not ended since
  std::map<std::string, double> stock;       ///< by item code in lower case
  std::map<std::int64_t, Json> members;      ///< records without what an account has
  std::map<std::int64_t, Account> accounts;  ///< by member
  std::map<std::int64_t, Json> operators;    ///< records
  std::map<std::string, std::string> parameters;
  std::map<std::int64_t, Json> returns, topUps, shifts;  ///< records
  std::map<std::int64_t, std::int64_t> bills;  ///< the entry that has a bill's last record
  std::set<std::int64_t> open;                 ///< bills
  std::set<std::int64_t> begunOpen;            ///< of those, when the journal began
  std::vector<OlderBills> older;
  std::map<std::int64_t, std::string> before;  ///< older bills' marks before their first change
  std::map<std::string, std::int64_t> last;    ///< numbers given when it began, by table

  bool isOlder(std::int64_t bill) const;

 private:
  void begin(const Json& body);
  void takeRows(const JournalEntry& entry, const Json& body);
  void takeBill(const JournalEntry& entry, const Json& body);
  void takeMoney(const Json& body);
  void setMember(Json record);
  void move(const std::string& item, double quantity);

  std::map<std::string, std::int64_t> memberOfCard_;  ///< by number in lower case
};

/// A figure of a body; 0 when it has none. Throws Failure for what is no figure.
Currency figureOf(const nlohmann::json& record, const char* name);
double quantityOf(const nlohmann::json& record, const char* name, double otherwise = 0);
std::int64_t numberOf(const nlohmann::json& record, const char* name);
