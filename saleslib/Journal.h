#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <utility>

#include "saleslib/Export.h"
#include "saleslib/JournalKinds.h"

class Connection;

/// The shop's journal: what was done, when and by whom, one entry behind the other in a chain of
/// hashes (saleslib/JournalEntry.h), so that nobody changes the books or the journal from outside
/// without it being seen. An entry is written in the transaction of what it tells of, or in one of
/// its own. Who and when is said by the connection's user.
///
/// Whether a shop keeps one, its last entry says: a shop that never turned it on (shop parameter
/// Journal) has no entries, and none is written. Throws StoreError.
class TESSALY_API Journal {
 public:
  explicit Journal(Connection& connection) : connection_(connection) {}

  [[nodiscard]] bool isOn() const;

  /// A JSON object; entries get its version.
  using Body = std::function<nlohmann::json()>;
  /// Notes what was done, if the shop keeps a journal; only then the body is made. A clock that was
  /// set back by more than a minute since the last entry is noted first.
  void note(EntryKind kind, const std::string& touches, const Body& body) const;
  /// The same with a few texts by name.
  void note(EntryKind kind, const std::string& touches = {},
            std::initializer_list<std::pair<const char*, std::string>> texts = {}) const;
  void note(EntryKind kind, std::int64_t number, const Body& body) const {
    note(kind, std::to_string(number), body);
  }

  /// Begins the journal, anew if there is one: an entry, and as many as it takes to state the books
  /// as they are (saleslib/JournalBase.h). One transaction.
  void begin() const;
  /// The last entry until it is begun anew.
  void end() const;

 private:
  friend class JournalBase;
  /// What the next entry stands behind.
  struct Last {
    std::int64_t seq = 0;
    std::string time, kind, hash;

    bool isOn() const;  ///< and not the journal's end
  };
  std::optional<Last> last() const;
  void append(std::optional<Last> before, EntryKind kind, const std::string& touches,
              nlohmann::json body) const;
  std::int64_t till() const;
  void write(const std::optional<Last>& before, EntryKind kind, const std::string& time,
             const std::string& touches, nlohmann::json body) const;

  Connection& connection_;
};
