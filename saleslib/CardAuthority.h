#pragma once

#include <cstdint>
#include <string>

#include "base/Currency.h"
#include "saleslib/Export.h"

/// Who decides in a shop of several tills whether a stored-value card holds enough: the shop's
/// server. A till of its own has none, and its data file decides.
class TESSALY_API CardAuthority {
 public:
  struct Charge {
    std::string key;  ///< no two charges of a till have the same
    std::int64_t bill = 0;
    std::string card;
    Currency amount;
  };
  struct Answer {
    enum Kind {
      kDone,
      kTooLittle,
      kUnknownCard,
      kNone,  ///< nobody knows whether it is done
    };
    Kind kind = kNone;
    Currency balance = {};  ///< left on the card; of kDone
  };

  CardAuthority() = default;
  CardAuthority(const CardAuthority&) = delete;
  CardAuthority& operator=(const CardAuthority&) = delete;
  virtual ~CardAuthority() = default;

  /// The server is known to be away: a question would be answered by nobody.
  virtual bool isAway() const = 0;
  /// Takes the amount from the card, once however often it is asked for under that key. Waits two
  /// seconds at most. Throws nothing for a server that is away.
  virtual Answer charge(const Charge& charge) = 0;
};
